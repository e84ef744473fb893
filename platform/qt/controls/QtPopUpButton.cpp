#include "platform/qt/controls/QtPopUpButton.h"

#include "platform/qt/base/ShownText.h"
#include "platform/qt/controls/PopUpBox.h"

namespace tavrin {

QtPopUpButton::QtPopUpButton(QComboBox& box, PendingChange& pending)
    : QtControlOf(box), pendingChange(pending) {
  // The panel's layout measures the items itself.
  box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  QObject::connect(&box, &QComboBox::activated, &receiver, [this] { changedByUser(); });
}

void QtPopUpButton::changedByUser() {
  const auto* box = dynamic_cast<PopUpBox*>(widget.data());
  if (!box || !box->isStepping()) return tellUserChange();
  pendingChange.tellLater(*widget, receiver, [this] { tellUserChange(); });
}

void QtPopUpButton::removeAllItems() {
  if (!widget) return;
  pendingChange.forget(*widget);
  widget->clear();
  layoutChanged(*widget);
}

void QtPopUpButton::addItem(const std::string& title, const std::string& value) {
  if (!widget) return;
  const int index = widget->count();
  widget->addItem(shownLine(title));
  widget->setItemData(index, QByteArray::fromStdString(title), kRawTitleRole);
  widget->setItemData(index, QByteArray::fromStdString(value), kValueRole);
  layoutChanged(*widget);
}

int QtPopUpButton::numberOfItems() const { return widget ? widget->count() : 0; }

OptString QtPopUpButton::itemText(int index, int role) const {
  if (!widget || index < 0 || index >= widget->count()) return {};
  return widget->itemData(index, role).toByteArray().toStdString();
}

OptString QtPopUpButton::itemTitle(int index) const { return itemText(index, kRawTitleRole); }

OptString QtPopUpButton::itemValue(int index) const { return itemText(index, kValueRole); }

int QtPopUpButton::indexOfSelectedItem() const { return widget ? widget->currentIndex() : -1; }

int QtPopUpButton::indexOfTitle(const OptString& title) const {
  for (int i = 0; i < numberOfItems(); ++i)
    if (sameText(itemTitle(i), title)) return i;
  return -1;
}

void QtPopUpButton::selectItemWithTitle(const OptString& title) {
  if (!widget) return;
  pendingChange.forget(*widget);
  widget->setCurrentIndex(indexOfTitle(title));
}

}  // namespace tavrin

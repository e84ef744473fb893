#include "platform/qt/controls/QtButton.h"

#include "platform/qt/base/ShownText.h"

namespace tavrin {

QtButton::QtButton(QAbstractButton& button) : QtControlOf(button) {
  QObject::connect(&button, &QAbstractButton::clicked, &receiver, [this] { tellUserChange(); });
}

int QtButton::intValue() const { return widget && widget->isChecked() ? 1 : 0; }

// Radio buttons exclude each other so that arrow keys move between them; a program that sets one
// neither turns others off nor is kept from turning the last one off.
void QtButton::setState(int state) {
  if (!widget || !widget->isCheckable()) return;
  const bool exclusive = widget->autoExclusive();
  widget->setAutoExclusive(false);
  widget->setChecked(state != 0);
  widget->setAutoExclusive(exclusive);
}

void QtButton::setTitle(const std::string& title) {
  if (!widget) return;
  widget->setProperty(kRawText, QByteArray::fromStdString(title));
  widget->setText(withoutMnemonics(shownLine(title)));
  layoutChanged(*widget);
}

}  // namespace tavrin

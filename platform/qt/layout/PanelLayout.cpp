#include "platform/qt/layout/PanelLayout.h"

#include <memory>

#include <QEvent>
#include <QWidget>

#include "platform/qt/base/MakeChild.h"
#include "platform/qt/layout/PanelPlan.h"
#include "platform/qt/layout/ViewFrames.h"

namespace tavrin {

void PanelLayout::takeOver(QWidget& root) {
  noteDesign(root);
  auto* layout = makeChild<PanelLayout>(&root);
  for (QWidget* view : root.findChildren<QWidget*>())
    if (isView(*view)) view->installEventFilter(layout);
}

PanelLayout::PanelLayout(QWidget* root) : QLayout(root) { setContentsMargins(0, 0, 0, 0); }

QSize PanelLayout::sizeHint() const {
  if (!hint) hint = PanelPlan(*parentWidget()).wantedSize();
  return *hint;
}

QSize PanelLayout::minimumSize() const {
  if (!minimum) minimum = PanelPlan(*parentWidget()).leastSize();
  return *minimum;
}

void PanelLayout::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  PanelPlan(*parentWidget()).apply(area);
}

void PanelLayout::invalidate() {
  hint.reset();
  minimum.reset();
  QLayout::invalidate();
}

// The toolkit tells only a widget's own parent that its size hint has changed.
bool PanelLayout::eventFilter(QObject* watched, QEvent* event) {
  const auto type = event->type();
  if (type == QEvent::LayoutRequest || type == QEvent::FontChange || type == QEvent::StyleChange ||
      type == QEvent::LayoutDirectionChange)
    layoutChanged(*static_cast<QWidget*>(watched));
  return QLayout::eventFilter(watched, event);
}

void PanelLayout::addItem(QLayoutItem* item) { const std::unique_ptr<QLayoutItem> unwanted(item); }

}  // namespace tavrin

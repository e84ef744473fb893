#include "platform/qt/layout/ViewFrames.h"

#include <QLayout>
#include <QRectF>

#include "platform/qt/base/WidgetProperties.h"

namespace tavrin {

namespace {

QList<QWidget*> childrenOf(const QWidget& parent) {
  return parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
}

void setFrame(QWidget& widget, const QRectF& frame) { widget.setProperty(kFrame, frame); }

void noteDesignBelow(QWidget& view, int parentHeight) {
  const QRect place = view.geometry();
  const double y = parentHeight - place.y() - place.height();
  setFrame(view, QRectF(place.x(), y, place.width(), place.height()));
  if (!holdsViews(view)) return;
  for (QWidget* child : childrenOf(view)) noteDesignBelow(*child, place.height());
}

QWidget* outermostView(QWidget& widget) {
  QWidget* view = &widget;
  while (view->parentWidget() && isView(*view->parentWidget())) view = view->parentWidget();
  return view;
}

}  // namespace

void noteDesign(QWidget& root) { noteDesignBelow(root, root.height()); }

bool isView(const QWidget& widget) { return widget.property(kFrame).isValid(); }

QList<QWidget*> viewsIn(const QWidget& parent) {
  QList<QWidget*> views = childrenOf(parent);
  views.removeIf([](QWidget* child) { return !isView(*child); });
  return views;
}

bool holdsViews(const QWidget& widget) { return widget.metaObject() == &QWidget::staticMetaObject; }

bool isFlaggedHidden(const QWidget& widget) { return widget.property(kHiddenFlag).toBool(); }

Rect frameOf(const QWidget& widget) {
  const QRectF frame = widget.property(kFrame).toRectF();
  return {frame.x(), frame.y(), frame.width(), frame.height()};
}

void noteFrame(QWidget& widget, const Rect& frame) {
  setFrame(widget, QRectF(frame.x, frame.y, frame.width, frame.height));
  layoutChanged(widget);
}

void layoutChanged(QWidget& widget) {
  QWidget* root = outermostView(widget);
  if (root->layout()) root->layout()->invalidate();
  root->updateGeometry();
}

}  // namespace tavrin

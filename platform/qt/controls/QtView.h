#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/qt/base/WidgetProperties.h"
#include "platform/qt/controls/WidgetHolder.h"
#include "platform/qt/layout/ViewFrames.h"
#include "platform/toolkit/View.h"

namespace tavrin {

// A view of some kind on a widget of some class. The widget belongs to the loaded interface and may
// be gone before the view, which then ignores commands as a null object does.
template <class Kind, class Widget>
class QtViewOf : public Kind, public WidgetHolder {
 public:
  explicit QtViewOf(Widget& shown) : widget(&shown) {
    shown.setProperty(kHiddenFlag, shown.testAttribute(Qt::WA_WState_ExplicitShowHide) &&
                                       shown.testAttribute(Qt::WA_WState_Hidden));
  }

  QWidget* heldWidget() const override { return widget; }

  Rect frame() const override { return widget ? frameOf(*widget) : Rect{}; }
  void setFrame(const Rect& frame) override {
    if (widget) noteFrame(*widget, frame);
  }
  bool isHidden() const override { return !widget || isFlaggedHidden(*widget); }
  void setHidden(bool hidden) override {
    if (!widget) return;
    widget->setProperty(kHiddenFlag, hidden);
    // Shown without a parent, a view would come up as a window.
    if (!widget->isWindow()) widget->setVisible(!hidden);
    layoutChanged(*widget);
  }
  void setNeedsDisplay() override {
    if (widget) widget->update();
  }

 protected:
  QPointer<Widget> widget;
};

// A view that only holds others.
using QtView = QtViewOf<View, QWidget>;

}  // namespace tavrin

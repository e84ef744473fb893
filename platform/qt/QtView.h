#pragma once

#include <functional>
#include <memory>
#include <utility>

#include <QPointer>
#include <QWidget>

#include "platform/qt/PanelLayout.h"
#include "platform/qt/WidgetProperties.h"
#include "platform/toolkit/Toolkit.h"

namespace tavrin {

// The widget side of a view. It exists so that a program can reach the widget of any view.
class WidgetHolder {
 public:
  virtual ~WidgetHolder() = default;
  // Null once the program has deleted the widget.
  virtual QWidget* heldWidget() const = 0;
};

// A view of some kind on a widget of some class. The widget belongs to the loaded interface; it
// may be gone before the view, which then ignores commands as a null object does.
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
  bool isHidden() const override { return !widget || widget->property(kHiddenFlag).toBool(); }
  void setHidden(bool hidden) override {
    if (!widget) return;
    widget->setProperty(kHiddenFlag, hidden);
    // A view without a parent would come up as a window.
    if (!widget->isWindow()) widget->setVisible(!hidden);
    layoutChanged(*widget);
  }
  void setNeedsDisplay() override {
    if (widget) widget->update();
  }

 protected:
  QPointer<Widget> widget;
};

// A view that does nothing but hold others.
using QtView = QtViewOf<View, QWidget>;

// A control on a widget, and whom it tells of the user's changes.
template <class Kind, class Widget>
class QtControlOf : public QtViewOf<Kind, Widget> {
 public:
  using QtViewOf<Kind, Widget>::QtViewOf;

  bool isEnabled() const override {
    return this->widget && !this->widget->testAttribute(Qt::WA_ForceDisabled);
  }
  void setEnabled(bool enabled) override {
    if (this->widget) this->widget->setEnabled(enabled);
  }

  // What to do after each change that the user makes.
  void onUserChange(std::function<void()> body) { userChanged = std::move(body); }

 protected:
  // The control may be gone when this returns.
  void tellUserChange() {
    if (const auto body = userChanged) body();
  }

  QObject receiver;  // ends the widget's signals to this control with it

 private:
  std::function<void()> userChanged;
};

}  // namespace tavrin

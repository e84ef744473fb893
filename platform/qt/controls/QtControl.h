#pragma once

#include <functional>
#include <utility>

#include <QObject>

#include "platform/qt/controls/QtView.h"

namespace tavrin {

// A control on a widget, which tells of the user's changes.
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

  QObject receiver;  // disconnects the widget's signals when the control goes

 private:
  std::function<void()> userChanged;
};

}  // namespace tavrin

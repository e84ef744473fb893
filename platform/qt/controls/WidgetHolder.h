#pragma once

class QWidget;

namespace tavrin {

// The widget side of a view. It exists so that a program can get at the widget of any view.
class WidgetHolder {
 public:
  virtual ~WidgetHolder() = default;
  // Null once the program has deleted the widget.
  virtual QWidget* heldWidget() const = 0;
};

}  // namespace tavrin

#pragma once

class QWidget;

namespace tavrin {

// Keeps a window as large as its contents ask for, and on the screen.
class ScreenFit {
 public:
  // The window outlives this object and has a layout when it is fitted.
  explicit ScreenFit(QWidget& fitted) : window(fitted) {}

  // Follows the contents as far as the screen goes; what the person has added to the window's
  // height stays.
  void fit();

 private:
  void stayOnScreen();

  QWidget& window;
  int wantedHeight = 0;  // what the contents asked for last
};

}  // namespace tavrin

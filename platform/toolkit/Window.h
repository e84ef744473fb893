#pragma once

#include <string>

namespace tavrin {

// A window that is run modally.
class Window {
 public:
  virtual ~Window() = default;
  virtual void setTitle(const std::string& title) = 0;
  // Puts the window, sized to its texts, in the middle of the window that it covers.
  virtual void center() = 0;
  // Brings the window up.
  virtual void display() = 0;
  // Takes the window down and tells its delegate once. Does nothing to a closed or closing window.
  virtual void close() = 0;
};

}  // namespace tavrin

#pragma once

namespace tavrin {

// A place and a size in points: the origin is the bottom left corner, y grows upwards, and a
// view's frame is in the coordinates of its parent.
struct Rect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  friend bool operator==(const Rect&, const Rect&) = default;
};

// Anything with a place in a panel.
class View {
 public:
  virtual ~View() = default;

  // The frame as last set (or as the interface file has it): a toolkit that draws the view
  // elsewhere or larger, because the font or a translation needs it, does not change the frame.
  virtual Rect frame() const = 0;
  virtual void setFrame(const Rect& frame) = 0;

  // The view's own flag, whether or not its parents are hidden.
  virtual bool isHidden() const = 0;
  virtual void setHidden(bool hidden) = 0;

  // Asks for the view to be drawn again soon.
  virtual void setNeedsDisplay() = 0;

  void setFrameOrigin(double x, double y);
  void setFrameSize(double width, double height);
};

}  // namespace tavrin

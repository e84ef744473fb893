#pragma once

#include <vector>

namespace tavrin {

// A stretch between two edges of a design, and the room that its contents need on screen.
struct Span {
  double left;
  double right;
  double minimum;  // pixels
  bool stretches;  // whether it can use more room
};

// Turns the positions of a design along one axis (points) into pixels. All spans share one ruler,
// so whatever is aligned in the design stays aligned when a long text or a large font pushes an
// edge on; no distance gets smaller than the design's.
class EdgeRuler {
 public:
  // A ruler for a design of that width, at that many pixels a point. A span whose right edge is not
  // to the right of its left one asks for nothing; one that leaves the design makes the ruler
  // longer.
  EdgeRuler(double designWidth, double scale, const std::vector<Span>& spans);

  // The least width that holds everything, in pixels.
  double width() const;
  // Widens the ruler to that many pixels where stretching spans can use them; does nothing if it is
  // as wide already.
  void widen(double pixels);
  // Where a point of the design lies, in pixels. Never decreases as x grows.
  double at(double x) const;

 private:
  struct Edge {
    double point;
    double pixel;
  };

  void solve(const std::vector<Span>& spans);
  bool liesAcross(const Span& span, std::size_t gap) const;
  std::size_t stretchGap(const std::vector<Span>& spans) const;

  double scale;
  std::vector<Edge> edges;  // in rising order
  std::size_t gapToWiden;   // the index of the edge on its right
};

}  // namespace tavrin

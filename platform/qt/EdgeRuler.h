#pragma once

#include <vector>

namespace tavrin {

// A stretch between two edges of a design, and the room that what stands there needs on screen.
struct Span {
  double left;
  double right;
  double minimum;  // pixels
  bool stretches;  // whether more room is of use to it
};

// Turns the x positions of a design (points) into pixels. All spans share one ruler, so what is
// lined up in the design stays lined up when a long text or a large font pushes an edge to the
// right; no distance gets smaller than the design's.
class EdgeRuler {
 public:
  // A ruler for a design of that width, with so many pixels a point. Spans that do not lie in the
  // order left, right, or that leave the design, are taken as they are; the ruler grows with them.
  EdgeRuler(double designWidth, double scale, const std::vector<Span>& spans);

  // The least width that holds everything, in pixels.
  double width() const;
  // Widens the ruler to that many pixels where stretching spans have the use of it; nothing for a
  // width that is not larger.
  void widen(double pixels);
  // Where a point of the design lies, in pixels. Never decreases as x grows.
  double at(double x) const;

 private:
  struct Edge {
    double point;
    double pixel;
  };

  void solve(const std::vector<Span>& spans);
  std::size_t stretchGap(const std::vector<Span>& spans) const;

  double scale;
  std::vector<Edge> edges;  // in rising order
  std::size_t gapToWiden;   // the index of the edge at its right
};

}  // namespace tavrin

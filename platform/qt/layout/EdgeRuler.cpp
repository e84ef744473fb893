#include "platform/qt/layout/EdgeRuler.h"

#include <algorithm>

namespace tavrin {

EdgeRuler::EdgeRuler(double designWidth, double pixelsPerPoint, const std::vector<Span>& spans)
    : scale(pixelsPerPoint) {
  std::vector<double> points{0, designWidth};
  for (const Span& span : spans) points.insert(points.end(), {span.left, span.right});
  std::sort(points.begin(), points.end());
  points.erase(std::unique(points.begin(), points.end()), points.end());
  for (double point : points) edges.push_back({point, 0});
  gapToWiden = stretchGap(spans);
  solve(spans);
  for (const Span& span : spans)
    if (liesAcross(span, gapToWiden))
      widen(width() + span.minimum - (at(span.right) - at(span.left)));
}

bool EdgeRuler::liesAcross(const Span& span, std::size_t gap) const {
  return gap > 0 && span.left <= edges[gap - 1].point && span.right >= edges[gap].point;
}

// From left to right, every edge goes as far left as its spans and its distance from the previous
// edge allow: the longest path through the design. Spans that lie across the gap that can be
// widened take their room there instead, so that what stretches gets it.
void EdgeRuler::solve(const std::vector<Span>& spans) {
  edges.front().pixel = edges.front().point * scale;
  for (std::size_t i = 1; i < edges.size(); ++i) {
    edges[i].pixel = edges[i - 1].pixel + (edges[i].point - edges[i - 1].point) * scale;
    for (const Span& span : spans) {
      if (span.right != edges[i].point || span.left >= span.right) continue;
      if (liesAcross(span, gapToWiden)) continue;
      edges[i].pixel = std::max(edges[i].pixel, at(span.left) + span.minimum);
    }
  }
}

// The gap that most stretching spans cover; of several, the widest.
std::size_t EdgeRuler::stretchGap(const std::vector<Span>& spans) const {
  std::size_t best = edges.size() - 1;
  std::pair<long, double> bestRank{-1, 0};
  for (std::size_t i = 1; i < edges.size(); ++i) {
    const auto covers = std::count_if(spans.begin(), spans.end(), [&](const Span& span) {
      return span.stretches && liesAcross(span, i);
    });
    const std::pair<long, double> rank{covers, edges[i].point - edges[i - 1].point};
    if (rank > bestRank) {
      bestRank = rank;
      best = i;
    }
  }
  return best;
}

double EdgeRuler::width() const { return edges.back().pixel - edges.front().pixel; }

void EdgeRuler::widen(double pixels) {
  const double more = pixels - width();
  if (more <= 0) return;
  for (std::size_t i = gapToWiden; i < edges.size(); ++i) edges[i].pixel += more;
}

double EdgeRuler::at(double x) const {
  const auto right = std::lower_bound(edges.begin(), edges.end(), x,
                                      [](const Edge& edge, double p) { return edge.point < p; });
  if (right == edges.end()) return edges.back().pixel + (x - edges.back().point) * scale;
  if (right->point == x) return right->pixel;
  if (right == edges.begin()) return right->pixel - (right->point - x) * scale;
  const Edge& left = *(right - 1);
  const double part = (x - left.point) / (right->point - left.point);
  return left.pixel + part * (right->pixel - left.pixel);
}

}  // namespace tavrin

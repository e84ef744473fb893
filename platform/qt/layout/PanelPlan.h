#pragma once

#include <vector>

#include <QWidget>

#include "platform/qt/layout/EdgeRuler.h"

namespace tavrin {

// Where the views of a panel belong on the screen, calculated from the frames, flags and texts that
// they have as the plan is made. See PanelLayout for what it follows.
class PanelPlan {
 public:
  // Looks at the views in the panel's root view, which outlives the plan.
  explicit PanelPlan(QWidget& panelRoot);

  // The size that the panel wants, and the least that it can do with, in pixels.
  QSize wantedSize() const { return sizeWithGaps(1); }
  QSize leastSize() const;

  // Gives every view its place in the root, as wide as this area.
  void apply(const QRect& area) const;

 private:
  struct Place {
    QWidget* widget;
    double left, top, width, height;  // points, from the root's upper left corner
    bool isLeaf;
    bool isShown;  // with all its parents below the root
  };

  void collect(QWidget& parent, double left, double top, bool shown);
  int rowHeight() const;
  bool needsRoom(const Place& place) const;
  double usedHeight() const;
  EdgeRuler columnsWithGaps(double factor) const;
  EdgeRuler columnsWithin(double width) const;
  EdgeRuler rowRuler() const;
  QSize sizeWithGaps(double factor) const;
  QRect rectOf(const Place& place, const EdgeRuler& columns, const QSize& area) const;

  QWidget& root;
  std::vector<Place> places;  // parents before their children
  EdgeRuler rows;
};

}  // namespace tavrin

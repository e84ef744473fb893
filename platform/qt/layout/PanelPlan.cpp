#include "platform/qt/layout/PanelPlan.h"

#include <algorithm>
#include <cmath>

#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionComboBox>

#include "platform/qt/layout/ViewFrames.h"

namespace tavrin {

namespace {

// The distance between a label and its control, and between two rows, in an interface file
// (points).
constexpr double kDesignSpacing = 9;

// How narrow the design's distances get, at most, where the screen is narrow.
constexpr double kNarrowestGaps = 0.25;

QRect rounded(double left, double top, double right, double bottom) {
  return QRect(QPoint(std::lround(left), std::lround(top)),
               QPoint(std::lround(right) - 1, std::lround(bottom) - 1));
}

// Wide enough for the widest item. A combo box that is told to adjust itself to its items resizes
// itself after a while, past any layout.
int widthForItems(const QComboBox& box) {
  QStyleOptionComboBox option;
  option.initFrom(&box);
  option.editable = false;
  option.frame = box.hasFrame();
  QSize text(0, box.fontMetrics().height());
  for (int i = 0; i < box.count(); ++i)
    text.setWidth(std::max(text.width(), box.fontMetrics().horizontalAdvance(box.itemText(i))));
  text.rwidth() += box.fontMetrics().averageCharWidth();
  return box.style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, &box).width();
}

int neededWidth(const QWidget& leaf) {
  if (leaf.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored) return leaf.minimumWidth();
  const auto* box = qobject_cast<const QComboBox*>(&leaf);
  return std::max(box ? widthForItems(*box) : leaf.sizeHint().width(), leaf.minimumWidth());
}

// The pixels that a form of the same style leaves where the design leaves a point.
double scaleOf(const QWidget& root, Qt::Orientation orientation) {
  const QStyle& style = *root.style();
  const auto metric = orientation == Qt::Horizontal ? QStyle::PM_LayoutHorizontalSpacing
                                                    : QStyle::PM_LayoutVerticalSpacing;
  int spacing = style.pixelMetric(metric, nullptr, &root);
  if (spacing < 0)
    spacing = style.combinedLayoutSpacing(QSizePolicy::Label, QSizePolicy::ComboBox, orientation);
  return std::max(spacing, 1) / kDesignSpacing;
}

bool stretches(const QWidget& leaf) {
  return qobject_cast<const QComboBox*>(&leaf) || qobject_cast<const QSlider*>(&leaf);
}

// A control keeps its natural height in the middle of its place.
QRect inItsPlace(const QWidget& leaf, QRect place) {
  const int spare = place.height() - leaf.sizeHint().height();
  if (spare <= 0 || qobject_cast<const QLabel*>(&leaf)) return place;
  return place.adjusted(0, spare / 2, 0, spare / 2 - spare);
}

}  // namespace

PanelPlan::PanelPlan(QWidget& panelRoot) : root(panelRoot), rows(0, 1, {}) {
  collect(root, 0, 0, true);
  rows = rowRuler();
}

void PanelPlan::collect(QWidget& parent, double left, double top, bool shown) {
  const QList<QWidget*> views = viewsIn(parent);
  double highest = frameOf(parent).height;
  for (const QWidget* view : views)
    if (const Rect frame = frameOf(*view); !isFlaggedHidden(*view))
      highest = std::max(highest, frame.y + frame.height);
  for (QWidget* view : views) {
    const Rect frame = frameOf(*view);
    const Place place{
        view,         left + frame.x,     top + highest - frame.y - frame.height, frame.width,
        frame.height, !holdsViews(*view), shown && !isFlaggedHidden(*view)};
    places.push_back(place);
    collect(*view, place.left, place.top, place.isShown);
  }
}

// What is hidden by its own flag needs no room. Views of a collapsed area do, so that no column
// moves when it is opened.
bool PanelPlan::needsRoom(const Place& place) const {
  return place.isLeaf && !isFlaggedHidden(*place.widget);
}

// The same for every row, so that the rows keep one rhythm whatever they hold.
int PanelPlan::rowHeight() const {
  int tallest = 0;
  for (const Place& place : places)
    if (needsRoom(place)) tallest = std::max(tallest, place.widget->sizeHint().height());
  return tallest;
}

EdgeRuler PanelPlan::rowRuler() const {
  const double height = rowHeight();
  std::vector<Span> spans;
  for (const Place& place : places)
    if (place.isLeaf) spans.push_back({place.top, place.top + place.height, height, false});
  return EdgeRuler(frameOf(root).height, scaleOf(root, Qt::Vertical), spans);
}

EdgeRuler PanelPlan::columnsWithGaps(double factor) const {
  std::vector<Span> spans;
  for (const Place& place : places)
    if (needsRoom(place))
      spans.push_back({place.left, place.left + place.width, double(neededWidth(*place.widget)),
                       stretches(*place.widget)});
  return EdgeRuler(frameOf(root).width, scaleOf(root, Qt::Horizontal) * factor, spans);
}

// A ruler's width is a convex function of its scale, so a scale in proportion fits.
EdgeRuler PanelPlan::columnsWithin(double width) const {
  EdgeRuler full = columnsWithGaps(1);
  full.widen(width);
  if (full.width() <= width) return full;
  const double least = columnsWithGaps(kNarrowestGaps).width();
  const double part = std::clamp((width - least) / (full.width() - least), 0.0, 1.0);
  return columnsWithGaps(std::lerp(kNarrowestGaps, 1.0, part));
}

// Down to the lowest visible control, and as much below it as there is above the highest.
double PanelPlan::usedHeight() const {
  const double height = frameOf(root).height;
  double highest = height;
  double lowest = 0;
  for (const Place& place : places) {
    if (!place.isLeaf || !place.isShown) continue;
    highest = std::min(highest, place.top);
    lowest = std::max(lowest, place.top + place.height);
  }
  return lowest > 0 ? std::min(height, lowest + highest) : height;
}

QSize PanelPlan::sizeWithGaps(double factor) const {
  return QSize(int(std::ceil(columnsWithGaps(factor).width())),
               int(std::ceil(rows.at(usedHeight()))));
}

QSize PanelPlan::leastSize() const { return sizeWithGaps(kNarrowestGaps); }

// In the coordinates of the root.
QRect PanelPlan::rectOf(const Place& place, const EdgeRuler& columns, const QSize& area) const {
  const QRect rect =
      rounded(columns.at(place.left), rows.at(place.top), columns.at(place.left + place.width),
              rows.at(place.top + place.height));
  return QStyle::visualRect(root.layoutDirection(), QRect(QPoint(0, 0), area),
                            place.isLeaf ? inItsPlace(*place.widget, rect) : rect);
}

void PanelPlan::apply(const QRect& area) const {
  const EdgeRuler columns = columnsWithin(area.width());
  for (const Place& place : places) {
    const QPoint origin = place.widget->parentWidget()->mapTo(&root, QPoint(0, 0));
    place.widget->setGeometry(rectOf(place, columns, area.size()).translated(-origin));
  }
}

}  // namespace tavrin

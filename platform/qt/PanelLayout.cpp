#include "platform/qt/PanelLayout.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include <QComboBox>
#include <QEvent>
#include <QFontMetricsF>
#include <QLabel>
#include <QRectF>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QWidget>

#include "platform/qt/MakeChild.h"
#include "platform/qt/WidgetProperties.h"

namespace tavrin {

namespace {

// The height of the text that the points of an interface file are drawn for.
constexpr double kDesignTextHeight = 15;

// How narrow the design's distances get, at most, where the screen is narrow.
constexpr double kNarrowestGaps = 0.25;

bool isView(const QWidget& widget) { return widget.property(kFrame).isValid(); }

QList<QWidget*> viewsIn(const QWidget& parent) {
  QList<QWidget*> children = parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  children.removeIf([](QWidget* child) { return !isView(*child); });
  return children;
}

bool isHiddenFlagSet(const QWidget& widget) { return widget.property(kHiddenFlag).toBool(); }

QWidget* outermostView(QWidget& widget) {
  QWidget* view = &widget;
  while (view->parentWidget() && isView(*view->parentWidget())) view = view->parentWidget();
  return view;
}

// Only plain views hold further views; what a control is made of is the toolkit's.
bool holdsViews(const QWidget& widget) { return widget.metaObject() == &QWidget::staticMetaObject; }

void noteDesign(QWidget& view, int parentHeight) {
  const QRect place = view.geometry();
  const double y = parentHeight - place.y() - place.height();
  view.setProperty(kFrame, QRectF(place.x(), y, place.width(), place.height()));
  if (!holdsViews(view)) return;
  for (QWidget* child : view.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
    noteDesign(*child, place.height());
}

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
  const auto* box = qobject_cast<const QComboBox*>(&leaf);
  return box ? widthForItems(*box) : leaf.sizeHint().width();
}

// A control keeps its natural height in the middle of its place.
QRect inItsPlace(const QWidget& leaf, QRect place) {
  const int spare = place.height() - leaf.sizeHint().height();
  if (spare <= 0 || qobject_cast<const QLabel*>(&leaf)) return place;
  return place.adjusted(0, spare / 2, 0, spare / 2 - spare);
}

}  // namespace

Rect frameOf(const QWidget& widget) {
  const QRectF frame = widget.property(kFrame).toRectF();
  return {frame.x(), frame.y(), frame.width(), frame.height()};
}

void noteFrame(QWidget& widget, const Rect& frame) {
  widget.setProperty(kFrame, QRectF(frame.x, frame.y, frame.width, frame.height));
  layoutChanged(widget);
}

void layoutChanged(QWidget& widget) {
  QWidget* root = outermostView(widget);
  if (root->layout()) root->layout()->invalidate();
  root->updateGeometry();
}

void PanelLayout::takeOver(QWidget& root) {
  noteDesign(root, root.height());
  auto* layout = makeChild<PanelLayout>(&root);
  for (QWidget* view : root.findChildren<QWidget*>())
    if (isView(*view)) view->installEventFilter(layout);
}

PanelLayout::PanelLayout(QWidget* root) : QLayout(root) { setContentsMargins(0, 0, 0, 0); }

void PanelLayout::addItem(QLayoutItem* item) { const std::unique_ptr<QLayoutItem> unwanted(item); }

void PanelLayout::invalidate() {
  hint.reset();
  minimum.reset();
  QLayout::invalidate();
}

// The toolkit tells only a widget's own parent that its size hint has changed.
bool PanelLayout::eventFilter(QObject* watched, QEvent* event) {
  const auto type = event->type();
  if (type == QEvent::LayoutRequest || type == QEvent::FontChange || type == QEvent::StyleChange ||
      type == QEvent::LayoutDirectionChange)
    layoutChanged(*static_cast<QWidget*>(watched));
  return QLayout::eventFilter(watched, event);
}

void PanelLayout::collect(QWidget& parent, double left, double top, bool shown,
                          std::vector<Place>& places) const {
  const double height = frameOf(parent).height;
  const auto views = viewsIn(parent);
  double highest = height;
  for (QWidget* view : views)
    if (const Rect f = frameOf(*view); !isHiddenFlagSet(*view))
      highest = std::max(highest, f.y + f.height);
  for (QWidget* view : views) {
    const Rect f = frameOf(*view);
    const bool isShown = shown && !isHiddenFlagSet(*view);
    const Place place{view,    left + f.x, top + highest - f.y - f.height,
                      f.width, f.height,   !holdsViews(*view),
                      isShown};
    places.push_back(place);
    collect(*view, place.left, place.top, isShown, places);
  }
}

// What is hidden by its own flag needs no room; the views of a collapsed area count, so that no
// column moves when it is opened.
double PanelLayout::scaleFor(const std::vector<Place>& places) const {
  double scale = QFontMetricsF(parentWidget()->font()).height() / kDesignTextHeight;
  for (const Place& place : places) {
    if (!place.isLeaf || isHiddenFlagSet(*place.widget) || place.height <= 0) continue;
    scale = std::max(scale, place.widget->sizeHint().height() / place.height);
  }
  return scale;
}

EdgeRuler PanelLayout::rulerFor(const std::vector<Place>& places, double scale) const {
  std::vector<Span> spans;
  for (const Place& place : places) {
    if (!place.isLeaf || isHiddenFlagSet(*place.widget)) continue;
    const bool stretches =
        qobject_cast<QComboBox*>(place.widget) || qobject_cast<QSlider*>(place.widget);
    spans.push_back(
        {place.left, place.left + place.width, double(neededWidth(*place.widget)), stretches});
  }
  return EdgeRuler(frameOf(*parentWidget()).width, scale, spans);
}

// A ruler's width is a convex function of its scale, so that a scale in proportion fits.
EdgeRuler PanelLayout::rulerWithin(const std::vector<Place>& places, double scale,
                                   double width) const {
  EdgeRuler full = rulerFor(places, scale);
  full.widen(width);
  if (full.width() <= width) return full;
  const double least = rulerFor(places, scale * kNarrowestGaps).width();
  const double part = std::clamp((width - least) / (full.width() - least), 0.0, 1.0);
  return rulerFor(places, scale * std::lerp(kNarrowestGaps, 1.0, part));
}

// Down to the lowest visible control, and as much below it as is above the highest.
double PanelLayout::usedHeight(const std::vector<Place>& places) const {
  const double height = frameOf(*parentWidget()).height;
  double highest = height;
  double lowest = 0;
  for (const Place& place : places) {
    if (!place.isLeaf || !place.isShown) continue;
    highest = std::min(highest, place.top);
    lowest = std::max(lowest, place.top + place.height);
  }
  return lowest > 0 ? std::min(height, lowest + highest) : height;
}

QSize PanelLayout::sizeWithGaps(double factor) const {
  std::vector<Place> places;
  collect(*parentWidget(), 0, 0, true, places);
  const double scale = scaleFor(places);
  return QSize(int(std::ceil(rulerFor(places, scale * factor).width())),
               int(std::ceil(usedHeight(places) * scale)));
}

QSize PanelLayout::sizeHint() const {
  if (!hint) hint = sizeWithGaps(1);
  return *hint;
}

QSize PanelLayout::minimumSize() const {
  if (!minimum) minimum = sizeWithGaps(kNarrowestGaps);
  return *minimum;
}

void PanelLayout::put(const Place& place, const EdgeRuler& ruler, double scale,
                      const QRect& area) const {
  QRect rect = rounded(ruler.at(place.left), place.top * scale, ruler.at(place.left + place.width),
                       (place.top + place.height) * scale);
  if (place.isLeaf) rect = inItsPlace(*place.widget, rect);
  rect =
      QStyle::visualRect(parentWidget()->layoutDirection(), QRect(QPoint(0, 0), area.size()), rect);
  QWidget* parent = place.widget->parentWidget();
  const QPoint origin =
      parent == parentWidget() ? QPoint(0, 0) : parent->mapTo(parentWidget(), QPoint(0, 0));
  place.widget->setGeometry(rect.translated(-origin));
}

// Parents come before their children, so their places are known.
void PanelLayout::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  std::vector<Place> places;
  collect(*parentWidget(), 0, 0, true, places);
  const double scale = scaleFor(places);
  const EdgeRuler ruler = rulerWithin(places, scale, area.width());
  for (const Place& place : places) put(place, ruler, scale, area);
}

}  // namespace tavrin

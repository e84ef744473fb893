#pragma once

#include <optional>
#include <vector>

#include <QLayout>

#include "platform/qt/EdgeRuler.h"
#include "platform/toolkit/Toolkit.h"

namespace tavrin {

// A view's frame as noted on its widget; an empty frame where none is noted.
Rect frameOf(const QWidget& widget);
// Notes the frame and lays the panel out anew before it is next drawn.
void noteFrame(QWidget& widget, const Rect& frame);
// The same after a text, a flag or anything else that a frame does not show.
void layoutChanged(QWidget& widget);

// Lays out a whole panel, a view with views in it, from the frames that the core sets: points,
// origin bottom left. A point is as many pixels as the font asks for; the columns of all views
// share one ruler, so that a long text widens its column everywhere. On a narrow screen only the
// room between the texts and controls gets narrower. Where visible views reach above their parent,
// the parent shows their top; room that nothing uses at the bottom is not shown.
class PanelLayout : public QLayout {
 public:
  // Takes over a view that has no layout of its own; belongs to the view. The frames of the views
  // in it are noted from their geometry.
  static void takeOver(QWidget& root);

  explicit PanelLayout(QWidget* root);

  QSize sizeHint() const override;
  QSize minimumSize() const override;
  void setGeometry(const QRect& area) override;
  void invalidate() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  // The layout's places come from the widgets, so it has no items.
  void addItem(QLayoutItem* item) override;
  int count() const override { return 0; }
  QLayoutItem* itemAt(int) const override { return nullptr; }
  QLayoutItem* takeAt(int) override { return nullptr; }
  Qt::Orientations expandingDirections() const override { return {}; }

 private:
  struct Place {
    QWidget* widget;
    double left, top, width, height;  // points, from the root's upper left corner
    bool isLeaf;
    bool isShown;  // with all its parents below the root
  };

  void collect(QWidget& parent, double left, double top, bool shown,
               std::vector<Place>& places) const;
  double scaleFor(const std::vector<Place>& places) const;
  EdgeRuler rulerFor(const std::vector<Place>& places, double scale) const;
  EdgeRuler rulerWithin(const std::vector<Place>& places, double scale, double width) const;
  QSize sizeWithGaps(double factor) const;
  double usedHeight(const std::vector<Place>& places) const;
  void put(const Place& place, const EdgeRuler& ruler, double scale, const QRect& area) const;

  mutable std::optional<QSize> hint;
  mutable std::optional<QSize> minimum;
};

}  // namespace tavrin

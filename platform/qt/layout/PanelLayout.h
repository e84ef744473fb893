#pragma once

#include <optional>

#include <QLayout>

namespace tavrin {

// Lays out a whole panel, a view with views in it, from the frames that the core sets: points,
// origin bottom left. What lies between the controls of the design is as wide on the screen as in a
// form of the same style, so that a panel stands in one grid with the forms above and below it; all
// rows are as high as the tallest control. The rows and columns of all views share one ruler each,
// so that a long text widens its column everywhere. On a narrow screen only the gaps between texts
// and controls shrink. Where visible views reach above their parent, the parent
// shows their top; unused room at the bottom is not shown.
class PanelLayout : public QLayout {
 public:
  // Gives a layout to a view that has none; it belongs to the view. The frames of the views in it
  // are noted from their geometry.
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
  mutable std::optional<QSize> hint;
  mutable std::optional<QSize> minimum;
};

}  // namespace tavrin

#pragma once

#include <QScrollArea>

namespace tavrin {

// The column of settings beside the preview. It is as wide as it is, whatever it holds: what needs
// more room scrolls, so that the window never changes its size by itself.
class SettingsColumn : public QScrollArea {
  Q_OBJECT

 public:
  // Its widget, which is empty at first, has what is in the column in a grid.
  explicit SettingsColumn(QWidget* parent);

  // Wide enough for most panels, and the same for every printer.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
};

}  // namespace tavrin

#pragma once

#include <QScrollArea>

namespace tavrin {

// A scroll area that asks for all the room that its contents need, so that bars come up only where
// the screen is too small for them.
class FittingScrollArea : public QScrollArea {
  Q_OBJECT

 public:
  explicit FittingScrollArea(QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tavrin

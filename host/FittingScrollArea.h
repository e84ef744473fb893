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
};

}  // namespace tavrin

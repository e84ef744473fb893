#pragma once

#include <QLabel>

namespace tavrin {

// A label of one line that is cut off where there is no room for it. It keeps its height without a
// text, so that nothing around it moves when there is one.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tavrin

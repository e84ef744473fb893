#pragma once

#include <QLabel>

namespace tavrin {

// A text that wraps and is as high as it needs at the width that it has. Layouts that ask for a
// height before they know the width leave a gap below another one.
class WrappedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit WrappedLabel(QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void resizeEvent(QResizeEvent* event) override;
};

}  // namespace tavrin

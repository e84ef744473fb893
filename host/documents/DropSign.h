#pragma once

#include <QWidget>

namespace tavrin {

// Lies over a window while files are dragged on it, and says what becomes of them when they are let
// go.
class DropSign : public QWidget {
  Q_OBJECT

 public:
  explicit DropSign(QWidget& window);

  // Comes up over the whole window.
  void appear();

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tavrin

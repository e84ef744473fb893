#pragma once

#include <QComboBox>

namespace tavrin {

// A combo box that knows how its item comes to change. It takes the place of every combo box of an
// interface file.
class PopUpBox : public QComboBox {
 public:
  using QComboBox::QComboBox;

  // Whether an arrow key, a typed letter or the wheel is just going through the items while the
  // list is closed.
  bool isStepping() const { return stepping; }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    stepping = true;
    QComboBox::keyPressEvent(event);
    stepping = false;
  }
  void wheelEvent(QWheelEvent* event) override {
    stepping = true;
    QComboBox::wheelEvent(event);
    stepping = false;
  }

 private:
  bool stepping = false;
};

}  // namespace tavrin

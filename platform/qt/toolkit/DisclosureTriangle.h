#pragma once

#include <QToolButton>

namespace tavrin {

// The button that opens and closes a part of a panel: a triangle that points down when it is on
// and in reading direction when it is off. It takes the place of every tool button of an interface
// file.
class DisclosureTriangle : public QToolButton {
 public:
  using QToolButton::QToolButton;

 protected:
  void initStyleOption(QStyleOptionToolButton* option) const override;
};

}  // namespace tavrin

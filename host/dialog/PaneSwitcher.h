#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "host/panes/Pane.h"

class QComboBox;
class QVBoxLayout;

namespace tavrin {

// The pop-up of panes with the chosen pane below it. Only that one takes room.
class PaneSwitcher : public QWidget {
  Q_OBJECT

 public:
  explicit PaneSwitcher(QWidget* parent);

  // Puts the panes in the pop-up, in this order, and shows the one with that name, else the first.
  // The panes stay their owner's.
  void setPanes(std::vector<Pane*> panes, const QString& toShow);

  // The pane on the screen; null where there is none.
  Pane* current() const { return shown; }
  // Asks the pane on the screen whether it may be left; true where there is none.
  bool mayLeave() { return !shown || shown->shouldHide(); }
  // Tells the pane on the screen that it is shown anew: its contents may be other ones now.
  void showAgain();

 private:
  void turnTo(int index);
  void show(Pane* pane);

  QComboBox* popUp;
  QVBoxLayout* column;
  std::vector<Pane*> panes;
  Pane* shown = nullptr;
};

}  // namespace tavrin

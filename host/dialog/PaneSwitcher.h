#pragma once

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

  // The pane on the screen; null if there are no panes.
  Pane* current() const { return shown; }
  // Tells the pane on the screen that it is shown again: its contents may have changed.
  void showAgain();

 private:
  bool mayLeave() { return !shown || shown->shouldHide(); }
  void turnTo(int index);
  void show(Pane* pane);

  QComboBox* popUp;
  QVBoxLayout* column;
  std::vector<Pane*> panes;
  Pane* shown = nullptr;
};

}  // namespace tavrin

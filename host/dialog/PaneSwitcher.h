#pragma once

#include <vector>

#include "host/panes/Pane.h"

class QTabBar;
class QVBoxLayout;

namespace tavrin {

// The tabs of panes with the chosen pane below them. Only that one takes room. Ctrl+Tab and
// Ctrl+Page Down turn to the next pane from anywhere in the window.
class PaneSwitcher : public QWidget {
  Q_OBJECT

 public:
  explicit PaneSwitcher(QWidget* parent);

  // Makes a tab for each pane, in this order, and shows the one with that name, else the first. A
  // tab is reached by a letter that nothing else in the window has. The panes stay their owner's.
  void setPanes(std::vector<Pane*> panes, const QString& toShow);

  // The pane on the screen; null if there are no panes.
  Pane* current() const { return shown; }
  // Tells the pane on the screen that it is shown again: its contents may have changed.
  void showAgain();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void addKeys();
  bool mayLeave() { return !shown || shown->shouldHide(); }
  void turnBy(int steps);
  void turnTo(int index);
  void showPane(Pane* pane);
  void tellCutNames();

  QTabBar* tabs;
  QVBoxLayout* column;
  std::vector<Pane*> panes;
  Pane* shown = nullptr;
};

}  // namespace tavrin

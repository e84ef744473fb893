#pragma once

#include <functional>
#include <vector>

#include <QEventLoop>
#include <QObject>

class QWidget;

namespace tavrin {

class QtWindow;

// The modal runs of the program, innermost last. A run is over when it is stopped, when its window
// closes without that, or when the program ends.
class ModalRuns : public QObject {
 public:
  ModalRuns();

  // Toolkit::runModalForWindow and stopModal.
  bool run(QtWindow& window);
  void stop();

  // Called with every window that comes up modally, from inside its run; may be empty.
  std::function<void(QWidget&)> observer;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Run {
    QEventLoop loop;
    bool stopped = false;
    bool over = false;  // stopped or abandoned
  };

  void end(Run& run);
  void handleEvents(Run& run, QtWindow& window);

  std::vector<Run*> runs;
  bool quitting = false;  // the program is closing its windows in order to quit
};

}  // namespace tavrin

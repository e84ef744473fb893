#pragma once

#include <deque>
#include <string>
#include <vector>

#include "replay/commands/ReplayCommand.h"
#include "replay/screen/Screenshots.h"
#include "replay/session/EventLog.h"

class QWidget;

namespace tavrin {

class QtToolkit;

// The person in front of the message windows: writes down each window that comes up, and works it
// as the command's next answer says. With no answer left it ends the program's event loops, so that
// nothing is decided for the person.
class WindowAnswers {
 public:
  // Attends to the windows of this toolkit for its life. Borrows all three.
  WindowAnswers(QtToolkit& windowToolkit, EventLog& eventLog, Screenshots& screenshots);
  ~WindowAnswers();
  WindowAnswers(const WindowAnswers&) = delete;
  WindowAnswers& operator=(const WindowAnswers&) = delete;

  // The answers of the command that is about to run.
  void expect(const std::vector<WindowAnswer>& commandAnswers);

  // What went wrong with the answers of the command, in sentences; empty when nothing did. A button
  // that the window lacks is passed over; an OK for a window without an OK button closes it.
  std::string problems() const;

  // Whether a window found no answer: the replay is over.
  bool ranOut() const { return !unanswered.empty(); }

 private:
  // Called from inside the window's modal run.
  void windowCameUp(QWidget& window);
  void workNext(QWidget& window);
  void work(QWidget& window, const WindowAnswer& answer);
  void clickChoice(QWidget& window, int number);
  void clickOk(QWidget& window);
  void complain(const std::string& sentence);

  QtToolkit& toolkit;
  EventLog& log;
  Screenshots& pictures;
  std::deque<WindowAnswer> answers;
  std::string complaints;
  std::string unanswered;  // the window that found no answer
};

}  // namespace tavrin

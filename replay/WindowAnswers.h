#pragma once

#include <deque>
#include <string>
#include <vector>

#include "replay/EventLog.h"
#include "replay/ReplayCommand.h"
#include "replay/Screenshots.h"

class QWidget;

namespace tavrin {

// The person before the message windows: writes down each window that comes up, and works it as
// the command's next answer says. With no answer left it ends the program's event loops, so that
// nothing is decided for the person.
class WindowAnswers {
 public:
  WindowAnswers(EventLog& eventLog, Screenshots& screenshots)
      : log(eventLog), pictures(screenshots) {}

  // The answers of the command that is about to run.
  void expect(const std::vector<WindowAnswer>& commandAnswers);

  // A window has come up; called from inside its modal run.
  void windowCameUp(QWidget& window);

  // What went wrong with the answers of the command, in sentences; empty when nothing did. An
  // answer that names a button which its window lacks passes over that button; an OK for a window
  // without OK button closes it.
  std::string problems() const;

  // Whether a window found no answer: the replay is over.
  bool ranOut() const { return !unanswered.empty(); }

 private:
  void workNext(QWidget& window);
  void work(QWidget& window, const WindowAnswer& answer);
  void clickChoice(QWidget& window, int number);
  void clickOk(QWidget& window);
  void complain(const std::string& sentence);

  EventLog& log;
  Screenshots& pictures;
  std::deque<WindowAnswer> answers;
  std::string complaints;
  std::string unanswered;  // the window that found no answer
};

}  // namespace tavrin

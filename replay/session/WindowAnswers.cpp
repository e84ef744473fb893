#include "replay/session/WindowAnswers.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QWidget>

#include "platform/qt/toolkit/QtToolkit.h"
#include "replay/screen/WindowContents.h"

namespace tavrin {
namespace {

// The visible button whose object name starts so; null if the window has none.
QAbstractButton* buttonNamed(QWidget& window, const char* prefix) {
  for (QAbstractButton* button : window.findChildren<QAbstractButton*>())
    if (button->objectName().startsWith(QLatin1String(prefix)) && button->isVisible())
      return button;
  return nullptr;
}

std::string countOfUnused(std::size_t count) {
  if (count == 0) return "";
  return std::to_string(count) + (count == 1 ? " answer was not used" : " answers were not used");
}

}  // namespace

WindowAnswers::WindowAnswers(QtToolkit& windowToolkit, EventLog& eventLog, Screenshots& screenshots)
    : toolkit(windowToolkit), log(eventLog), pictures(screenshots) {
  toolkit.onModalWindow([this](QWidget& window) { windowCameUp(window); });
}

WindowAnswers::~WindowAnswers() { toolkit.onModalWindow({}); }

void WindowAnswers::expect(const std::vector<WindowAnswer>& commandAnswers) {
  answers.assign(commandAnswers.begin(), commandAnswers.end());
  complaints.clear();
}

void WindowAnswers::windowCameUp(QWidget& window) {
  log.windowShown(windowName(window), windowContents(window));
  pictures.window(windowName(window), window);
  workNext(window);
}

void WindowAnswers::workNext(QWidget& window) {
  if (answers.empty()) {
    unanswered = windowName(window);
    QCoreApplication::exit();
    return;
  }
  const WindowAnswer answer = answers.front();
  answers.pop_front();
  work(window, answer);
}

void WindowAnswers::work(QWidget& window, const WindowAnswer& answer) {
  for (const int number : answer.choose) clickChoice(window, number);
  if (answer.end == WindowAnswer::End::ok)
    clickOk(window);
  else
    window.close();
}

void WindowAnswers::clickChoice(QWidget& window, int number) {
  const char* const prefixes[] = {"ibFirstButton_", "ibSecondButton_", "ibThirdButton_"};
  if (QAbstractButton* button = buttonNamed(window, prefixes[number - 1]))
    button->click();
  else
    complain("The window " + windowName(window) + " has no choice button " +
             std::to_string(number) + ".");
}

void WindowAnswers::clickOk(QWidget& window) {
  if (QAbstractButton* button = buttonNamed(window, "ibOkButton_")) return button->click();
  complain("The window " + windowName(window) + " has no OK button.");
  window.close();
}

void WindowAnswers::complain(const std::string& sentence) {
  complaints += (complaints.empty() ? "" : " ") + sentence;
}

std::string WindowAnswers::problems() const {
  if (ranOut())
    return "The window " + unanswered + " came up and the script had no answer left for it.";
  const std::string unused = countOfUnused(answers.size());
  return complaints + (complaints.empty() || unused.empty() ? "" : " ") + unused;
}

}  // namespace tavrin

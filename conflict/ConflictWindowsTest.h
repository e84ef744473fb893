#pragma once

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "conflict/ConflictTest.h"
#include "platform/NotificationCenter.h"

namespace tavrin {

// What a user does with a conflict window ("MsgTwo"). Answers for FakeToolkit.

inline void pickChoice(FakeInterface& windows, const std::string& dialog, int choice) {
  static const char* const ordinals[] = {"", "First", "Second", "Third"};
  const std::string name = std::string(ordinals[choice]) + "Button_" + dialog;
  windows.pick("ib" + name, "click" + name + ":");
}

inline void pressOk(FakeInterface& windows, const std::string& dialog) {
  windows.press("ibOkButton_" + dialog, "clickOkButton_" + dialog + ":");
}

// Picks a choice and presses OK; choice 0 leaves the choice as it came up.
inline FakeToolkit::Answer choosing(const std::string& dialog, int choice) {
  return [=](FakeInterface& windows) {
    if (choice != 0) pickChoice(windows, dialog, choice);
    pressOk(windows, dialog);
  };
}

// Closes a window by its close button: "MsgTwo" or "Instruction".
inline FakeToolkit::Answer closing(const std::string& dialog) {
  return [=](FakeInterface& windows) { windows.window("ib" + dialog + "Window").close(); };
}

// A window as the user saw it come up.
struct SeenWindow {
  std::string window, title;
  std::map<std::string, std::string> labels;
  std::map<std::string, int> states;

  const std::string& label(const std::string& name) const { return labels.at(name); }
};

// A panel's conflict windows on a toolkit without a screen.
class ConflictWindowsTest : public testing::Test {
 protected:
  ConflictWindowsTest() {
    NotificationCenter::defaultCenter().addObserver(
        this, ConflictControllerChangeNotification,
        [this](const void* object) { notifications.push_back(object); });
  }
  ~ConflictWindowsTest() override { NotificationCenter::defaultCenter().removeObserver(this); }

  // The answer, once the window has been looked at.
  FakeToolkit::Answer lookingThen(FakeToolkit::Answer answer) {
    return [this, answer = std::move(answer)](FakeInterface& windows) {
      look(windows);
      answer(windows);
    };
  }
  void look(FakeInterface& windows) {
    SeenWindow now;
    now.window = toolkit.shown.back();
    now.title = windows.window(now.window).title;
    for (const auto& [name, label] : windows.labels) now.labels[name] = label->text;
    for (const auto& [name, button] : windows.buttons) now.states[name] = button->state;
    seen.push_back(now);
  }

  // Runs processConflict with these answers, all of which must be asked for.
  void process(std::vector<FakeToolkit::Answer> answers) { process(panel, std::move(answers)); }
  void process(ConflictTestPanel& on, std::vector<FakeToolkit::Answer> answers) {
    seen.clear();
    toolkit.shown.clear();
    notifications.clear();
    for (auto& answer : answers) toolkit.answers.push_back(lookingThen(std::move(answer)));
    on.checker->processConflict();
    EXPECT_TRUE(toolkit.answers.empty()) << toolkit.answers.size() << " windows did not come up";
    toolkit.answers.clear();
  }

  using Names = std::vector<std::string>;

  FreshConflicts fresh;
  PrinterRoot root;
  FakeToolkit toolkit;
  PPDPtr ppd = conflictTestPrinter();
  ConflictTestPanel panel{ppd.get()};
  std::vector<SeenWindow> seen;
  std::vector<const void*> notifications;
};

}  // namespace tavrin

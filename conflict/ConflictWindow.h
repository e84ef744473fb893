#pragma once

#include <array>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "platform/toolkit/Toolkit.h"

namespace tavrin {

// The choices of a conflict window, from the top.
enum Choice : std::size_t { firstChoice, secondChoice, thirdChoice };

// One of the windows "MsgOne", "MsgTwo" and "MsgFive": what clashes, the choices with their
// captions, and OK. The choices are radio buttons that are kept in step by hand; filling a
// window again shows the first one on but does not take back what was selected.
//
// The interface file connects the outlets in place, so a window is neither copied nor moved.
class ConflictWindow {
 public:
  // The name that every outlet of the window carries, and how many captions each choice has.
  ConflictWindow(std::string name, std::initializer_list<std::size_t> captionsOfChoices);
  ConflictWindow(const ConflictWindow&) = delete;
  ConflictWindow& operator=(const ConflictWindow&) = delete;

  void offerOutlets(InterfaceBindings& bindings);

  // --- What it shows ---

  // The texts that every conflict window has, and the first choice on.
  void showCommonTexts();
  // What is not compatible with what; an absent text leaves its label as it was.
  void showClash(const OptString& one, const OptString& other);
  // The captions of a choice, as many as it has; an absent one leaves its label as it was.
  void showChoice(Choice choice, std::initializer_list<OptString> captions);

  // --- What is selected ---

  void selectFirst() { selected = firstChoice; }
  // Follows a choice button that was clicked; one that is off now selects nothing.
  void follow(Choice choice, const Button& sender);
  // What was selected, absent before the first choice was; from now on it is the first choice.
  std::optional<Choice> takeSelected();

  Outlet<Window> window;
  Outlet<Button> okButton;

 private:
  struct ChoiceParts {
    std::string ordinal;  // "First" and so on, in its names
    Outlet<Button> button;
    std::vector<Outlet<Label>> captions;
  };

  std::string name;
  Outlet<Label> labelA, labelB, labelC, labelD;
  std::vector<ChoiceParts> choices;
  std::optional<Choice> selected;
};

}  // namespace tavrin

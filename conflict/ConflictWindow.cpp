#include "conflict/ConflictWindow.h"

#include <array>
#include <utility>

#include "ppd/PlugInBundle.h"

namespace tavrin {
namespace {

constexpr std::array<const char*, 3> kOrdinals = {"First", "Second", "Third"};

void show(Label& label, const OptString& text) {
  if (text) label.setStringValue(*text);
}

}  // namespace

ConflictWindow::ConflictWindow(std::string suffix,
                               std::initializer_list<std::size_t> captionsOfChoices)
    : name(std::move(suffix)) {
  for (const std::size_t captions : captionsOfChoices) {
    choices.push_back({kOrdinals.at(choices.size()), {}, std::vector<Outlet<Label>>(captions)});
  }
}

void ConflictWindow::offerOutlets(InterfaceBindings& bindings) {
  bindings.outlet("ib" + name + "Window", window);
  bindings.outlet("ibLabelA_" + name, labelA);
  bindings.outlet("ibLabelB_" + name, labelB);
  bindings.outlet("ibLabelC_" + name, labelC);
  bindings.outlet("ibLabelD_" + name, labelD);
  for (ChoiceParts& choice : choices) {
    const std::string button = choice.ordinal + "Button_" + name;
    bindings.outlet("ib" + button, choice.button);
    char letter = 'A';
    for (auto& caption : choice.captions) {
      bindings.outlet(std::string("ibLabel") + letter++ + "_" + button, caption);
    }
  }
  bindings.outlet("ibOkButton_" + name, okButton);
}

void ConflictWindow::showCommonTexts() {
  for (auto& choice : choices) choice.button->setState(&choice == &choices.front() ? 1 : 0);
  labelB->setStringValue(localized("is not compatible with"));
  labelD->setStringValue(localized("Choose an option to resolve the conflict:"));
  okButton->setTitle(localized("OK"));
  window->setTitle(localized("Conflicting settings"));
}

void ConflictWindow::showClash(const OptString& one, const OptString& other) {
  show(*labelA, one);
  show(*labelC, other);
}

void ConflictWindow::showChoice(Choice choice, std::initializer_list<OptString> captions) {
  auto label = choices[choice].captions.begin();
  for (const OptString& caption : captions) show(**label++, caption);
}

void ConflictWindow::follow(Choice choice, const Button& sender) {
  if (sender.intValue() != 1) return;
  selected = choice;
  for (std::size_t i = 0; i < choices.size(); ++i) {
    if (i != choice) choices[i].button->setState(0);
  }
}

std::optional<Choice> ConflictWindow::takeSelected() {
  return std::exchange(selected, firstChoice);
}

}  // namespace tavrin

#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/toolkit/InterfaceBindings.h"
#include "platform/toolkit/LoadedInterface.h"
#include "tests/fakes/FakeControls.h"

namespace tavrin {

// An interface file that has one fake object for every outlet that the owner offers, under the
// outlet's name. A test looks at the objects and works them as a user would.
class FakeInterface final : public LoadedInterface {
 public:
  explicit FakeInterface(InterfaceBindings offered);
  void detach() override;
  std::vector<std::string> problems() const override { return {}; }

  FakePopUpButton& popUp(const std::string& name) { return *popUps.at(name); }
  FakeButton& button(const std::string& name) { return *buttons.at(name); }
  FakeSlider& slider(const std::string& name) { return *sliders.at(name); }
  FakeLabel& label(const std::string& name) { return *labels.at(name); }
  FakeWindow& window(const std::string& name) { return *windows.at(name); }
  FakeViewOf<View>& view(const std::string& name) { return *views.at(name); }

  // What the user does: change the control, then run its action.
  void choose(const std::string& control, int index, const std::string& action);
  void click(const std::string& control, const std::string& action);  // the state flips
  void pick(const std::string& control, const std::string& action);   // a radio button: goes on
  void slide(const std::string& control, int value, const std::string& action);
  void press(const std::string& control, const std::string& action);  // a push button: stays off

  // The name of a window of this interface; absent for any other window.
  OptString nameOf(const Window& window) const;

  InterfaceBindings bindings;
  bool detached = false;
  std::map<std::string, std::unique_ptr<FakePopUpButton>> popUps;
  std::map<std::string, std::unique_ptr<FakeButton>> buttons;
  std::map<std::string, std::unique_ptr<FakeSlider>> sliders;
  std::map<std::string, std::unique_ptr<FakeLabel>> labels;
  std::map<std::string, std::unique_ptr<FakeWindow>> windows;
  std::map<std::string, std::unique_ptr<FakeViewOf<View>>> views;

 private:
  void make(const std::string& name, InterfaceBindings::AnyOutlet outlet);
  template <class Sender>
  void run(const std::string& action, Sender& sender);
};

}  // namespace tavrin

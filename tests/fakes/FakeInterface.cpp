#include "tests/fakes/FakeInterface.h"

#include <utility>

namespace tavrin {

FakeInterface::FakeInterface(InterfaceBindings offered) : bindings(std::move(offered)) {
  for (const auto& [name, outlet] : bindings.outlets) make(name, outlet);
  for (const auto& [name, window] : windows) {
    window->willClose = [this] {
      if (!detached && bindings.windowWillClose) bindings.windowWillClose();
    };
  }
}

void FakeInterface::make(const std::string& name, InterfaceBindings::AnyOutlet outlet) {
  const auto put = [&name](auto& shelf, auto object, auto* place) {
    place->connect(*object);
    shelf[name] = std::move(object);
  };
  if (auto** view = std::get_if<Outlet<View>*>(&outlet)) {
    put(views, std::make_unique<FakeViewOf<View>>(), *view);
  } else if (auto** popUp = std::get_if<Outlet<PopUpButton>*>(&outlet)) {
    put(popUps, std::make_unique<FakePopUpButton>(), *popUp);
  } else if (auto** button = std::get_if<Outlet<Button>*>(&outlet)) {
    put(buttons, std::make_unique<FakeButton>(), *button);
  } else if (auto** slider = std::get_if<Outlet<Slider>*>(&outlet)) {
    put(sliders, std::make_unique<FakeSlider>(), *slider);
  } else if (auto** label = std::get_if<Outlet<Label>*>(&outlet)) {
    put(labels, std::make_unique<FakeLabel>(), *label);
  } else if (auto** window = std::get_if<Outlet<Window>*>(&outlet)) {
    put(windows, std::make_unique<FakeWindow>(), *window);
  }
}

void FakeInterface::detach() {
  detached = true;
  for (const auto& [name, window] : windows) window->close();
}

OptString FakeInterface::nameOf(const Window& window) const {
  for (const auto& [name, fake] : windows) {
    if (fake.get() == &window) return name;
  }
  return std::nullopt;
}

template <class Sender>
void FakeInterface::run(const std::string& action, Sender& sender) {
  if (detached) return;
  // By value: the owner may go away while the action runs.
  const auto body = std::get<std::function<void(Sender&)>>(bindings.actions.at(action));
  body(sender);
}

void FakeInterface::choose(const std::string& control, int index, const std::string& action) {
  popUp(control).selected = index;
  run<PopUpButton>(action, popUp(control));
}

void FakeInterface::click(const std::string& control, const std::string& action) {
  button(control).state = 1 - button(control).state;
  run<Button>(action, button(control));
}

void FakeInterface::pick(const std::string& control, const std::string& action) {
  button(control).state = 1;
  run<Button>(action, button(control));
}

void FakeInterface::slide(const std::string& control, int value, const std::string& action) {
  slider(control).value = value;
  run<Slider>(action, slider(control));
}

void FakeInterface::press(const std::string& control, const std::string& action) {
  run<Button>(action, button(control));
}

}  // namespace tavrin

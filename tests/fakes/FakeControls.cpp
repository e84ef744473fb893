#include "tests/fakes/FakeControls.h"

namespace tavrin {

void FakePopUpButton::removeAllItems() {
  items.clear();
  selected = -1;
}

void FakePopUpButton::addItem(const std::string& title, const std::string& value) {
  items.push_back({title, value});
  if (items.size() == 1) selected = 0;
}

OptString FakePopUpButton::itemTitle(int index) const {
  if (index < 0 || index >= numberOfItems()) return std::nullopt;
  return items[static_cast<std::size_t>(index)].title;
}

OptString FakePopUpButton::itemValue(int index) const {
  if (index < 0 || index >= numberOfItems()) return std::nullopt;
  return items[static_cast<std::size_t>(index)].value;
}

void FakePopUpButton::selectItemWithTitle(const OptString& title) {
  ++selections;
  const auto found = std::find_if(items.begin(), items.end(),
                                  [&](const Item& item) { return sameText(item.title, title); });
  selected = found != items.end() ? static_cast<int>(found - items.begin()) : -1;
}

void FakeWindow::close() {
  if (!open) return;
  open = false;
  if (willClose) willClose();
}

}  // namespace tavrin

#include "platform/NotificationCenter.h"

#include <cstddef>
#include <utility>

namespace tavrin {

NotificationCenter& NotificationCenter::defaultCenter() {
  static NotificationCenter center;
  return center;
}

void NotificationCenter::addObserver(const void* owner, std::string name, Handler handler) {
  observers.push_back({owner, std::move(name), std::move(handler)});
}

void NotificationCenter::removeObserver(const void* owner) {
  // While a notification is under way its handlers must stay where they are, so the observers are
  // only marked; the outermost post sweeps them out.
  for (Observer& observer : observers) {
    if (observer.owner == owner) observer.owner = nullptr;
  }
  if (deliveries == 0) observers.remove_if([](const Observer& o) { return o.owner == nullptr; });
}

void NotificationCenter::post(const std::string& name, const void* object) {
  ++deliveries;
  const std::size_t known = observers.size();
  auto observer = observers.begin();
  for (std::size_t i = 0; i < known; ++i, ++observer) {
    if (observer->owner != nullptr && observer->name == name) observer->handler(object);
  }
  if (--deliveries == 0) {
    observers.remove_if([](const Observer& o) { return o.owner == nullptr; });
  }
}

}  // namespace tavrin

#include "platform/toolkit/NotificationCenter.h"

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
  for (Observer& observer : observers) {
    if (observer.owner == owner) observer.owner = nullptr;
  }
  if (deliveries == 0) sweep();
}

// Handlers must stay where they are while a notification is under way, so removed observers are
// only marked until the outermost post is over, even if a handler throws.
void NotificationCenter::sweep() {
  observers.remove_if([](const Observer& o) { return o.owner == nullptr; });
}

class NotificationCenter::Delivery {
 public:
  explicit Delivery(NotificationCenter& from) : center(from) { ++center.deliveries; }
  ~Delivery() {
    if (--center.deliveries == 0) center.sweep();
  }
  Delivery(const Delivery&) = delete;
  Delivery& operator=(const Delivery&) = delete;

 private:
  NotificationCenter& center;
};

void NotificationCenter::post(const std::string& name, const void* object) {
  const Delivery delivery(*this);
  const std::size_t known = observers.size();
  auto observer = observers.begin();
  for (std::size_t i = 0; i < known; ++i, ++observer) {
    if (observer->owner != nullptr && observer->name == name) observer->handler(object);
  }
}

}  // namespace tavrin

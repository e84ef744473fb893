#pragma once

#include <functional>
#include <list>
#include <string>

namespace tavrin {

// Tells whoever asked that something happened, by name, at once, on the thread that posts. It
// exists so that parts of a panel, and several panels in one process, need not know each other.
class NotificationCenter {
 public:
  // What an observer gets: the object that the poster named, for identity only; may be null.
  using Handler = std::function<void(const void* object)>;

  // The one centre of the process.
  static NotificationCenter& defaultCenter();

  // Calls the handler for every later notification of that name, from any poster. The owner is
  // only a mark to remove the observer by, and not null.
  void addObserver(const void* owner, std::string name, Handler handler);

  // Forgets every observer of that owner. Allowed while a notification is being delivered, also
  // to the observer that is being told.
  void removeObserver(const void* owner);

  // Tells the observers of that name in the order in which they were added. One that is added
  // meanwhile is not told of this notification, one that is removed meanwhile neither.
  void post(const std::string& name, const void* object);

 private:
  struct Observer {
    const void* owner;  // null once removed
    std::string name;
    Handler handler;
  };

  class Delivery;  // a post that is on the stack

  void sweep();

  std::list<Observer> observers;
  int deliveries = 0;
};

}  // namespace tavrin

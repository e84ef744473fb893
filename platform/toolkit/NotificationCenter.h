#pragma once

#include <functional>
#include <list>
#include <string>

namespace tavrin {

// Tells everyone who asked that something has happened, by its name, at once, on the thread that
// posts. It exists so that parts of a panel, and several panels in one process, need not know each
// other.
class NotificationCenter {
 public:
  // Given the object that the poster named, only to be compared with others; may be null.
  using Handler = std::function<void(const void* object)>;

  // The one centre of the process.
  static NotificationCenter& defaultCenter();

  // Calls the handler for every later notification of that name, whoever posts it. The owner, never
  // null, only serves to remove the observer again.
  void addObserver(const void* owner, std::string name, Handler handler);

  // Forgets every observer of that owner. Allowed while a notification is being delivered, even to
  // that very observer.
  void removeObserver(const void* owner);

  // Tells the observers of that name in the order in which they were added. Observers that are
  // added or removed during the delivery are not told of this notification.
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

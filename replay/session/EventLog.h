#pragma once

#include <string>

#include "platform/text/OptionalString.h"
#include "replay/commands/Json.h"

namespace tavrin {

// What happens during a command, in order, as its reply tells it.
class EventLog {
 public:
  void optionWillChange(const std::string& panel, const std::string& key, const OptString& choice);
  void viewDidResize(const std::string& panel);
  void helpBookRegistered(const std::string& path);
  void helpPageShown(const std::string& book, const OptString& page);
  // A message window that came up, with its name and what it shows.
  void windowShown(const std::string& window, const Json& contents);

  // The events since the last call, a list.
  Json take();

 private:
  void add(const std::string& event, const Json& fields);

  Json events = Json::array();
};

}  // namespace tavrin

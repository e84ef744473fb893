#pragma once

#include <string>

#include "platform/text/OptionalString.h"
#include "platform/toolkit/HelpViewer.h"
#include "replay/Json.h"

namespace tavrin {

// What happens during a command, in order, in the form that its reply has.
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

// An absent text is null.
Json jsonOf(const OptString& text);

// A help viewer that shows nothing and writes down what it was asked.
class RecordingHelpViewer : public HelpViewer {
 public:
  explicit RecordingHelpViewer(EventLog& eventLog) : log(eventLog) {}

  void registerHelpBook(const std::string& path) override { log.helpBookRegistered(path); }
  void gotoPage(const std::string& book, const OptString& page, const OptString&) override {
    log.helpPageShown(book, page);
  }

 private:
  EventLog& log;
};

}  // namespace tavrin

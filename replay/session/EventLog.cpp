#include "replay/session/EventLog.h"

#include <utility>

namespace tavrin {

void EventLog::add(const std::string& event, const Json& fields) {
  Json entry = {{"event", event}};
  entry.update(fields);
  events.push_back(std::move(entry));
}

void EventLog::optionWillChange(const std::string& panel, const std::string& key,
                                const OptString& choice) {
  add("willChangePPDOptionKeyValue", {{"panel", panel}, {"key", key}, {"choice", jsonOf(choice)}});
}

void EventLog::viewDidResize(const std::string& panel) {
  add("panelViewDidResize", {{"panel", panel}});
}

void EventLog::helpBookRegistered(const std::string& path) {
  add("registerHelpBook", {{"path", path}});
}

void EventLog::helpPageShown(const std::string& book, const OptString& page) {
  add("gotoPage", {{"book", book}, {"page", jsonOf(page)}});
}

void EventLog::windowShown(const std::string& window, const Json& contents) {
  Json fields = {{"window", window}};
  fields.update(contents);
  add("window", fields);
}

Json EventLog::take() { return std::exchange(events, Json::array()); }

}  // namespace tavrin

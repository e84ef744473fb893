#include "replay/session/PanelCommands.h"

#include <functional>
#include <map>

#include "replay/session/UserHand.h"

namespace tavrin {
namespace {

using Handler = std::function<Result<Json>(PanelSession&, const ReplayCommand&)>;

Json withState(const PanelSession& session, Json answer = Json::object()) {
  answer["state"] = session.state();
  return answer;
}

Json summaryOf(PDEPanel& panel) {
  Json lines = Json::object();
  for (const auto& [label, value] : panel.summaryInfo()) lines[label] = jsonOf(value);
  return lines;
}

// The state after the user's hand did something, or why it could not.
Result<Json> afterWork(const PanelSession& session, const Result<bool>& worked) {
  if (!worked) return Failure{worked.reason()};
  return withState(session);
}

const std::map<Verb, Handler>& questions() {
  static const std::map<Verb, Handler> handlers = {
      {Verb::shouldHide,
       [](auto& session, const auto&) {
         return Json{{"result", session.panel().shouldHide()}};
       }},
      {Verb::supportedKeys,
       [](auto& session, const auto&) {
         return Json{{"keys", session.panel().supportedPPDOptionKeys()}};
       }},
      {Verb::saveValues,
       [](auto& session, const auto&) {
         return Json{{"result", session.panel().saveValuesAndReturnError(nullptr)}};
       }},
      {Verb::summaryInfo,
       [](auto& session, const auto&) {
         return Json{{"summary", summaryOf(session.panel())}};
       }},
      {Verb::shouldShowHelp,
       [](auto& session, const auto&) {
         return Json{{"result", session.panel().shouldShowHelp()}};
       }},
  };
  return handlers;
}

const std::map<Verb, Handler>& refreshes() {
  static const std::map<Verb, Handler> handlers = {
      {Verb::panelView,
       [](auto& session, const auto&) {
         session.askForView();
         return withState(session);
       }},
      {Verb::willShow,
       [](auto& session, const auto&) {
         session.willShow();
         return withState(session);
       }},
      {Verb::restoreValues,
       [](auto& session, const auto&) {
         const bool result = session.panel().restoreValuesAndReturnError(nullptr);
         return withState(session, {{"result", result}});
       }},
      {Verb::optionDidChange,
       [](auto& session, const auto& command) {
         session.panel().PPDOptionKeyValueDidChange(command.key, command.choice);
         return withState(session);
       }},
      {Verb::state, [](auto& session, const auto&) { return withState(session); }},
  };
  return handlers;
}

const std::map<Verb, Handler>& changesElsewhere() {
  static const std::map<Verb, Handler> handlers = {
      {Verb::mark,
       [](auto& session, const auto& command) {
         session.mark(*command.key, *command.choice);
         return Json::object();
       }},
      {Verb::unmark,
       [](auto& session, const auto& command) {
         session.unmark(*command.key);
         return Json::object();
       }},
      {Verb::page,
       [](auto& session, const auto& command) {
         session.host().pageFormat()->setPaper(command.page);
         return Json::object();
       }},
      {Verb::columns,
       [](auto& session, const auto& command) {
         session.host().printSettings()->setValue(kPMLayoutColumns, command.columns);
         return Json::object();
       }},
  };
  return handlers;
}

const std::map<Verb, Handler>& usersDoings() {
  static const std::map<Verb, Handler> handlers = {
      {Verb::choose,
       [](auto& session, const auto& command) {
         const UserHand hand(session.widget());
         return afterWork(session, hand.choose(command.control, command.index));
       }},
      {Verb::click,
       [](auto& session, const auto& command) {
         const UserHand hand(session.widget());
         return afterWork(session, hand.click(command.control));
       }},
      {Verb::slide,
       [](auto& session, const auto& command) {
         const UserHand hand(session.widget());
         return afterWork(session, hand.slide(command.control, command.value));
       }},
  };
  return handlers;
}

}  // namespace

Result<Json> carryOutOnPanel(PanelSession& session, const ReplayCommand& command) {
  for (const auto* handlers : {&questions(), &refreshes(), &changesElsewhere(), &usersDoings()})
    if (const auto found = handlers->find(command.verb); found != handlers->end())
      return found->second(session, command);
  return Failure{"This command is not for a panel."};
}

}  // namespace tavrin

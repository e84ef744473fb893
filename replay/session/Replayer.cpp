#include "replay/session/Replayer.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include <QApplication>

#include "platform/files/Bundle.h"
#include "platform/text/Quoted.h"
#include "replay/session/PanelCommands.h"

namespace tavrin {
namespace {

Json reply(const Result<Json>& answer, Json events) {
  Json line = {{"ok", static_cast<bool>(answer)}};
  if (!answer) line["error"] = answer.reason();
  line["events"] = std::move(events);
  if (answer) line.update(*answer);
  return line;
}

Json panelIdentity(PDEPanel& panel) {
  return {{"kind", panel.panelKind()}, {"name", panel.panelName()}};
}

Failure noPanel(const OptString& id) {
  return Failure{id ? "No panel " + quotedInShort(*id) + " is open." : "No panel is open."};
}

}  // namespace

Json Replayer::play(const std::string& line) {
  const auto command = parseCommand(line);
  if (!command) return reply(Failure{command.reason()}, Json::array());
  const Answer answer = carryOutWithAnswers(*command);
  // What the command left to the event loop happens before the next one, as it does before a
  // person's next click.
  QCoreApplication::processEvents();
  // Widgets that are to be deleted later would wait for an event loop, and there is none.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  takePictures();
  return reply(answer, log.take());
}

// What was wrong with the answers to windows is known only afterwards.
Replayer::Answer Replayer::carryOutWithAnswers(const ReplayCommand& command) {
  windows.expect(command.answers);
  const Answer answer = carryOut(command);
  const std::string problems = windows.problems();
  if (!answer || problems.empty()) return answer;
  return Failure{problems};
}

Replayer::Answer Replayer::carryOut(const ReplayCommand& command) {
  switch (command.verb) {
    case Verb::initWithBundle:
      return initWithBundle(command);
    case Verb::panelsForType:
      return panelsForType(command);
    case Verb::open:
      return open(command);
    case Verb::close:
      return close(command);
    default:
      return onPanel(command);
  }
}

Replayer::Answer Replayer::initWithBundle(const ReplayCommand& command) {
  if (!command.bundle) return Json{{"result", plugIn.initWithBundle(nullptr)}};
  std::error_code unreadable;
  if (!std::filesystem::is_directory(*command.bundle, unreadable))
    return Failure{"There is no bundle folder " + quotedInShort(*command.bundle) + "."};
  const Bundle bundle = Bundle::atPath(*command.bundle);
  return Json{{"result", plugIn.initWithBundle(&bundle)}};
}

Replayer::Answer Replayer::panelsForType(const ReplayCommand& command) {
  PanelHost host(nullptr);
  const auto made = plugIn.PDEPanelsForType(command.type, &host);
  return Json{{"panels", made ? Json(made->size()) : Json(nullptr)}};
}

Replayer::Answer Replayer::open(const ReplayCommand& command) {
  const std::string id = command.panel.value_or("1");
  if (find(id) != panels.end())
    return Failure{"The panel " + quotedInShort(id) + " is open already."};
  auto session = PanelSession::open(id, plugIn, log, command);
  if (!session) return Failure{session.reason()};
  panels.push_back(std::move(*session));
  return panelIdentity(panels.back()->panel());
}

Replayer::Answer Replayer::close(const ReplayCommand& command) {
  const auto found = find(command.panel);
  if (found == panels.end()) return noPanel(command.panel);
  pictures.forget((*found)->id());
  panels.erase(found);
  return Json::object();
}

Replayer::Answer Replayer::onPanel(const ReplayCommand& command) {
  const auto found = find(command.panel);
  if (found == panels.end()) return noPanel(command.panel);
  return carryOutOnPanel(**found, command);
}

Replayer::Panels::iterator Replayer::find(const OptString& id) {
  if (!id) return panels.empty() ? panels.end() : std::prev(panels.end());
  return std::find_if(panels.begin(), panels.end(),
                      [&id](const auto& session) { return session->id() == *id; });
}

void Replayer::takePictures() {
  for (const auto& session : panels)
    if (QWidget* widget = session->shownWidget()) pictures.panel(session->id(), *widget);
}

}  // namespace tavrin

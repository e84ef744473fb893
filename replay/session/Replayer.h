#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/contract/PrintDialogExtension.h"
#include "platform/text/Result.h"
#include "replay/commands/Json.h"
#include "replay/commands/ReplayCommand.h"
#include "replay/screen/Screenshots.h"
#include "replay/session/EventLog.h"
#include "replay/session/PanelSession.h"
#include "replay/session/WindowAnswers.h"

namespace tavrin {

// Carries out a script's lines one by one, with the panels that they open. The plug-in and the
// others are borrowed and outlive it.
class Replayer {
 public:
  Replayer(PDEPlugIn& plugInObject, EventLog& eventLog, WindowAnswers& windowAnswers,
           Screenshots& screenshots)
      : plugIn(plugInObject), log(eventLog), windows(windowAnswers), pictures(screenshots) {}

  // Carries out a line and gives its reply: "ok", "error" where it is not ok, "events", and what
  // the command answers.
  Json play(const std::string& line);

 private:
  // What a command answers besides its events.
  using Answer = Result<Json>;

  Answer carryOutWithAnswers(const ReplayCommand& command);
  Answer carryOut(const ReplayCommand& command);
  Answer initWithBundle(const ReplayCommand& command);
  Answer panelsForType(const ReplayCommand& command);
  Answer open(const ReplayCommand& command);
  Answer close(const ReplayCommand& command);
  Answer onPanel(const ReplayCommand& command);

  using Panels = std::vector<std::unique_ptr<PanelSession>>;
  Panels::iterator find(const OptString& id);
  void takePictures();

  PDEPlugIn& plugIn;
  EventLog& log;
  WindowAnswers& windows;
  Screenshots& pictures;
  Panels panels;  // in the order in which they were opened
};

}  // namespace tavrin

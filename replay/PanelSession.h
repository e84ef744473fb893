#pragma once

#include <memory>
#include <string>

#include "platform/contract/PrintDialogExtension.h"
#include "platform/text/Result.h"
#include "replay/EventLog.h"
#include "replay/Json.h"
#include "replay/ReplayCommand.h"
#include "replay/ReplayHost.h"

class QWidget;

namespace tavrin {

// A panel that is open, with the host that it talks to and the window that shows it.
class PanelSession {
 public:
  // Loads the printer's PPD, marks what the command says and gets a panel from the plug-in. The
  // reason when the PPD cannot be loaded or the plug-in has no panel. Borrows the plug-in only for
  // the call, the log for the session's life.
  static Result<std::unique_ptr<PanelSession>> open(const std::string& id, PDEPlugIn& plugIn,
                                                    EventLog& log, const ReplayCommand& command);
  ~PanelSession();
  PanelSession(const PanelSession&) = delete;
  PanelSession& operator=(const PanelSession&) = delete;

  const std::string& id() const { return name; }
  PDEPanel& panel() { return *pdePanel; }
  ReplayHost& host() { return *dialog; }

  // Asks the panel for its view.
  void askForView();
  // Tells the panel that it is about to be shown and shows its view, now or as soon as there is
  // one.
  void willShow();

  // The panel's view; null before it was asked for and when there is none.
  QWidget* widget() const;
  // The same, but null before it is shown.
  QWidget* shownWidget() const;
  // The controls and views as they stand; null before the panel has a view.
  Json state() const;

 private:
  PanelSession(std::string id, std::unique_ptr<ReplayHost> panelHost);
  void showOnceReady();

  std::string name;
  std::unique_ptr<ReplayHost> dialog;  // has the PPD, so it outlives the panel
  std::unique_ptr<PDEPanel> pdePanel;
  std::shared_ptr<View> view;
  std::unique_ptr<QWidget> window;
  bool toldToShow = false;
};

}  // namespace tavrin

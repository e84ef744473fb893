#pragma once

#include <memory>
#include <string>

#include "host/panels/PanelHost.h"
#include "platform/contract/PrintDialogExtension.h"
#include "platform/text/Result.h"
#include "ppd/CupsHandles.h"
#include "replay/commands/Json.h"
#include "replay/commands/ReplayCommand.h"
#include "replay/session/EventLog.h"

class QWidget;

namespace tavrin {

// A panel that is open, with the host that it talks to and the window that shows it.
class PanelSession {
 public:
  // Loads the printer's PPD, marks what the command says and gets a panel from the plug-in. The
  // reason if the PPD cannot be loaded or the plug-in has no panel. Borrows the plug-in only for
  // the call, the log for the session's life.
  static Result<std::unique_ptr<PanelSession>> open(const std::string& id, PDEPlugIn& plugIn,
                                                    EventLog& log, const ReplayCommand& command);
  ~PanelSession();
  PanelSession(const PanelSession&) = delete;
  PanelSession& operator=(const PanelSession&) = delete;

  const std::string& id() const { return name; }
  PDEPanel& panel() { return *pdePanel; }
  // The dialog's side, whose job other panes change.
  PanelHost& host() { return dialog; }

  // Marks a choice in the PPD, telling nobody. An option or choice that the PPD lacks marks nothing
  // and is named on standard error: the dialog may do so, but the script perhaps did not mean to.
  void mark(const std::string& key, const std::string& choice);
  // Takes the option's mark away, telling nobody; names an unknown option likewise.
  void unmark(const std::string& key);

  // Asks the panel for its view.
  void askForView();
  // Tells the panel that it is about to be shown and shows its view, now or as soon as there is
  // one.
  void willShow();

  // The panel's view; null before it was asked for and if there is none.
  QWidget* widget() const;
  // The same, but null before it is shown.
  QWidget* shownWidget() const;
  // The controls and views as they stand; null before the panel has a view.
  Json state() const;

 private:
  PanelSession(const std::string& id, PPDPtr printerPPD, EventLog& log);
  void prepare(const ReplayCommand& command);
  void showOnceReady();

  std::string name;
  PPDPtr ppd;
  PanelHost dialog;
  std::unique_ptr<PDEPanel> pdePanel;  // goes before what it was given
  std::shared_ptr<View> view;
  std::unique_ptr<QWidget> window;
  bool toldToShow = false;
};

}  // namespace tavrin

#include "replay/session/PanelSession.h"

#include <utility>

#include <QVBoxLayout>
#include <QWidget>

#include "host/printer/MarkedOptions.h"
#include "host/printer/PPDLoader.h"
#include "platform/files/StandardStreams.h"
#include "platform/qt/base/MakeChild.h"
#include "platform/qt/toolkit/QtToolkit.h"
#include "platform/text/Quoted.h"
#include "replay/screen/PanelState.h"

namespace tavrin {
namespace {

Result<PPDPtr> printerOf(const ReplayCommand& command) {
  if (!command.ppd) return PPDPtr();
  return loadPPD(*command.ppd);
}

void sayOfThePPD(const std::string& lack, const std::string& consequence) {
  writeError("tavrin-replay", "The PPD has no " + lack + "; nothing is " + consequence + ".");
}

// A window of the panel's own size.
std::unique_ptr<QWidget> windowAround(QWidget& panel) {
  auto window = std::make_unique<QWidget>();
  auto* layout = makeChild<QVBoxLayout>(window.get());
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addWidget(&panel);
  return window;
}

}  // namespace

PanelSession::PanelSession(const std::string& id, PPDPtr printerPPD, EventLog& log)
    : name(id), ppd(std::move(printerPPD)), dialog(ppd.get()) {
  dialog.onWillChange = [id, &log](const std::string& key, const OptString& choice) {
    log.optionWillChange(id, key, choice);
  };
  dialog.onResize = [id, &log] { log.viewDidResize(id); };
}

Result<std::unique_ptr<PanelSession>> PanelSession::open(const std::string& id, PDEPlugIn& plugIn,
                                                         EventLog& log,
                                                         const ReplayCommand& command) {
  auto ppd = printerOf(command);
  if (!ppd) return Failure{ppd.reason()};
  std::unique_ptr<PanelSession> session(new PanelSession(id, std::move(*ppd), log));
  session->prepare(command);
  auto made = plugIn.PDEPanelsForType(kPrintDialogPanelType, &session->dialog);
  if (!made || made->empty()) return Failure{"The plug-in has no panel for the Print dialog."};
  session->pdePanel = std::move(made->front());
  return session;
}

void PanelSession::prepare(const ReplayCommand& command) {
  if (command.markDefaults) ppdMarkDefaults(ppd.get());
  for (const auto& [key, choice] : command.marks) mark(key, choice);
  dialog.pageFormat()->setPaper(command.page);
  dialog.printSettings()->setValue(kPMLayoutColumns, command.columns);
}

void PanelSession::mark(const std::string& key, const std::string& choice) {
  if (!markChoice(ppd.get(), key, choice))
    sayOfThePPD("choice " + quotedInShort(choice) + " of " + quotedInShort(key), "marked");
}

void PanelSession::unmark(const std::string& key) {
  if (ppd_option_t* option = ppdFindOption(ppd.get(), key.c_str()))
    tavrin::unmark(*ppd, *option);
  else
    sayOfThePPD("option " + quotedInShort(key), "unmarked");
}

// The widget is the plug-in's: it leaves the window before both go.
PanelSession::~PanelSession() {
  if (QWidget* shown = widget()) shown->setParent(nullptr);
  window.reset();
  view.reset();
  pdePanel.reset();
}

void PanelSession::askForView() {
  view = pdePanel->panelView();
  showOnceReady();
}

void PanelSession::willShow() {
  pdePanel->willShow();
  toldToShow = true;
  showOnceReady();
}

void PanelSession::showOnceReady() {
  if (!toldToShow || window || !widget()) return;
  window = windowAround(*widget());
  window->show();
}

QWidget* PanelSession::widget() const { return view ? QtToolkit::widgetOf(*view) : nullptr; }

QWidget* PanelSession::shownWidget() const { return window ? widget() : nullptr; }

Json PanelSession::state() const {
  const QWidget* panelWidget = widget();
  return panelWidget ? panelState(*panelWidget) : Json(nullptr);
}

}  // namespace tavrin

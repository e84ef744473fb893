#include "replay/PanelSession.h"

#include <QVBoxLayout>
#include <QWidget>

#include "host/printer/PPDLoader.h"
#include "platform/qt/MakeChild.h"
#include "platform/qt/QtToolkit.h"
#include "replay/WidgetState.h"

namespace tavrin {
namespace {

Result<PPDPtr> printerOf(const ReplayCommand& command) {
  if (!command.ppd) return PPDPtr();
  return loadPPD(*command.ppd);
}

std::unique_ptr<ReplayHost> hostFor(const std::string& id, EventLog& log, PPDPtr ppd,
                                    const ReplayCommand& command) {
  auto host = std::make_unique<ReplayHost>(id, log, std::move(ppd));
  if (command.markDefaults) host->markDefaults();
  for (const auto& [key, choice] : command.marks) host->mark(key, choice);
  host->setPaper(command.page);
  host->setColumns(command.columns);
  return host;
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

PanelSession::PanelSession(std::string id, std::unique_ptr<ReplayHost> panelHost)
    : name(std::move(id)), dialog(std::move(panelHost)) {}

Result<std::unique_ptr<PanelSession>> PanelSession::open(const std::string& id, PDEPlugIn& plugIn,
                                                         EventLog& log,
                                                         const ReplayCommand& command) {
  auto ppd = printerOf(command);
  if (!ppd) return Failure{ppd.reason()};
  auto host = hostFor(id, log, std::move(*ppd), command);
  auto made = plugIn.PDEPanelsForType(kPrintDialogPanelType, &host->callback());
  if (!made || made->empty()) return Failure{"The plug-in has no panel for the Print dialog."};
  std::unique_ptr<PanelSession> session(new PanelSession(id, std::move(host)));
  session->pdePanel = std::move(made->front());
  return session;
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

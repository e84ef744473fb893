#include "host/dialog/SessionPanes.h"

#include "host/panels/PrinterSession.h"
#include "host/panes/FeaturesPane.h"
#include "host/panes/PanelPane.h"
#include "host/panes/Widgets.h"
#include "host/printer/MarkedOptions.h"
#include "platform/qt/toolkit/QtToolkit.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

// The options that the panels and the other parts of the dialog show.
std::set<std::string> shownElsewhere(const PrinterSession& session) {
  std::set<std::string> keywords = session.claimedKeywords();
  keywords.insert({kPageSizeKey, "PageRegion"});
  if (const ppd_option_t* twoSided = twoSidedOption(session.ppd()))
    keywords.insert(twoSided->keyword);
  return keywords;
}

}  // namespace

SessionPanes::SessionPanes(PrinterSession& session, QWidget* widget)
    : features(makeChild<FeaturesPane>(session.marks(), shownElsewhere(session), widget)) {
  connect(features, &FeaturesPane::laidOutAnew, this, &SessionPanes::laidOutAnew);
  addPanels(session, widget);
  followActions(session);
}

// What a panel shows is the printer's setting as soon as the person has changed it, so that the
// rest of the dialog shows it, too.
void SessionPanes::followActions(PrinterSession& session) {
  const QtToolkit* toolkit = QtToolkit::installed();
  if (!toolkit) return;
  connect(toolkit, &QtToolkit::actionRan, this, [this, &session] {
    if (const std::string reason = session.takePanelChoices(); !reason.empty())
      emit saveFailed(reason);
  });
}

void SessionPanes::addPanels(PrinterSession& session, QWidget* widget) {
  for (const auto& panel : session.panels()) {
    auto* pane = makeChild<PanelPane>(*panel, session, widget);
    connect(pane, &PanelPane::saveFailed, this, &SessionPanes::saveFailed);
    connect(&session, &PrinterSession::panelResized, pane, &PanelPane::followView);
    panels.push_back(pane);
  }
}

SessionPanes::~SessionPanes() {
  qDeleteAll(panels);
  const std::unique_ptr<QWidget> last(features);
}

std::vector<Pane*> SessionPanes::offered() const {
  std::vector<Pane*> panes(panels.begin(), panels.end());
  if (!features->isEmpty()) panes.insert(panes.begin(), features);
  return panes;
}

std::vector<const Pane*> SessionPanes::summedUp() const {
  std::vector<const Pane*> panes(panels.begin(), panels.end());
  panes.push_back(features);
  return panes;
}

Pane* SessionPanes::first() const { return panels.empty() ? nullptr : panels.front(); }

}  // namespace tavrin

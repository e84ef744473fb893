#include "host/dialog/GeneralArea.h"
#include "host/dialog/JobButtons.h"
#include "host/dialog/Note.h"
#include "host/dialog/PaneSwitcher.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/PrinterPopUp.h"
#include "host/job/JobOptions.h"
#include "host/panes/FeaturesPane.h"
#include "host/panes/LayoutPane.h"
#include "host/panes/PanelPane.h"
#include "host/panes/SummaryPane.h"
#include "host/panes/Widgets.h"
#include "host/printer/MarkedOptions.h"
#include "platform/qt/ShownText.h"

namespace tavrin {

void PrintDialog::beginSession(const SharedPPD& ppd) {
  queueOfSession = general->printers().selected()->name;
  current = std::make_unique<PrinterSession>(ppd);
  QString problems = markPrinter();  // the panels look at the marks as they come up
  problems += ' ' + shownLines(current->loadPanels());
  note->say(problems.trimmed(), Note::Kind::information);
  general->setMarks(&current->marks());
  layoutPane->setMarks(&current->marks());
  makePanes();
  connect(&current->marks(), &PPDMarks::refreshed, this, &PrintDialog::showConflicts);
  connect(current.get(), &PrinterSession::panelResized, this, [this] {
    for (PanelPane* pane : panelPanes) pane->followView();
  });
  buttons->setState(JobButtons::State::ready);
  showConflicts();
  emit sessionChanged();
}

void PrintDialog::makePanes() {
  std::vector<Pane*> panes{layoutPane};
  std::set<std::string> elsewhere = current->claimedKeywords();
  elsewhere.insert({kPaperSizeKeyword, "PageRegion"});
  if (const ppd_option_t* twoSided = twoSidedOption(current->ppd()))
    elsewhere.insert(twoSided->keyword);
  featuresPane = makeChild<FeaturesPane>(current->marks(), elsewhere, switcher);
  connect(featuresPane, &FeaturesPane::laidOutAnew, this, [this] {
    orderTabs({content, note, buttons});
  });
  if (!featuresPane->isEmpty()) panes.push_back(featuresPane);
  for (const auto& panel : current->panels()) {
    panelPanes.push_back(makeChild<PanelPane>(*panel, switcher));
    connect(panelPanes.back(), &PanelPane::saveFailed, this,
            [this](const QString& reason) { note->say(reason); });
    panes.push_back(panelPanes.back());
  }
  panes.push_back(summaryPane);
  const QString first = panelPanes.empty() ? layoutPane->name() : panelPanes.front()->name();
  switcher->setPanes(panes, first);
  orderTabs({content, note, buttons});
}

void PrintDialog::endSession() {
  if (!current) return;
  switcher->setPanes({layoutPane, summaryPane}, layoutPane->name());
  conflictNote->clear();
  general->setMarks(nullptr);
  layoutPane->setMarks(nullptr);
  // The panes go before the panels and marks that they show.
  const std::unique_ptr<QWidget> features(std::exchange(featuresPane, nullptr));
  for (PanelPane* pane : std::exchange(panelPanes, {})) const std::unique_ptr<QWidget> gone(pane);
  current.reset();
}

// The printer's saved options under the program's: what lp would send.
OptionList PrintDialog::startOptions() const {
  OptionList options;
  if (const Printer* printer = general->printers().selected()) options = printer->options;
  for (const auto& [name, value] : request.options) setOption(options, name, value);
  return options;
}

QString PrintDialog::markPrinter() {
  const OptionList options = startOptions();
  const OptString pages = optionValue(options, kPagesPerSheetOption);
  const bool laidOut = layoutPane->suggestPagesPerSheet(pages ? integerValue(pages) : 1);
  current->setPagesPerSheet(layoutPane->pagesPerSheet());
  QStringList problems;
  for (const std::string& problem : current->markAnew(options)) problems << shownLines(problem);
  if (!laidOut)
    problems << tr("A sheet can hold 1, 2, 4, 6, 9 or 16 pages, not “%1”.").arg(shownLine(*pages));
  return problems.join(' ');
}

}  // namespace tavrin

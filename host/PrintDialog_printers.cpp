#include <algorithm>

#include <QTimer>

#include "host/FeaturesPane.h"
#include "host/GeneralArea.h"
#include "host/JobButtons.h"
#include "host/LayoutPane.h"
#include "host/Note.h"
#include "host/PaneSwitcher.h"
#include "host/PanelPane.h"
#include "host/PrintDialog.h"
#include "host/PrinterPopUp.h"
#include "host/SummaryPane.h"
#include "host/Widgets.h"
#include "platform/qt/ShownText.h"

namespace tavrin {

namespace {

constexpr int kStateInterval = 10'000;  // milliseconds
constexpr char kPagesPerSheetOption[] = "number-up";

QString joined(const std::vector<std::string>& sentences) {
  QStringList texts;
  for (const std::string& sentence : sentences)
    if (!sentence.empty()) texts << shownLines(sentence);
  return texts.join(' ');
}

}  // namespace

void PrintDialog::connectBrowser() {
  PrinterPopUp& printers = general->printers();
  const auto isSelected = [&printers](const std::string& queue) {
    return printers.selected() && printers.selected()->name == queue;
  };
  connect(&printers, &PrinterPopUp::picked, this, &PrintDialog::choosePrinter);
  connect(&browser, &PrinterBrowser::printersFound, this, &PrintDialog::showPrinters);
  connect(&browser, &PrinterBrowser::printersFailed, this, &PrintDialog::noPrinters);
  connect(&browser, &PrinterBrowser::ppdReady, this,
          [=, this](const std::string& queue, const SharedPPD& ppd) {
            if (isSelected(queue)) takePPD(ppd);
          });
  connect(&browser, &PrinterBrowser::ppdFailed, this,
          [=, this](const std::string& queue, const QString& reason) {
            if (isSelected(queue)) goWithoutPPD(reason);
          });
  connect(&browser, &PrinterBrowser::stateChanged, &printers,
          [&printers](const std::string& queue, const PrinterState& state) {
            printers.setStateText(queue, shownLine(stateText(state)));
          });
  connect(&browser, &PrinterBrowser::stateFailed, &printers, [&printers](const std::string& queue) {
    printers.setStateText(queue, tr("does not answer"));
  });
  connect(stateTimer, &QTimer::timeout, this, &PrintDialog::watchState);
}

void PrintDialog::usePrintServer() {
  note->clear();
  general->printers().setEmpty(tr("Looking for printers…"));
  browser.findPrinters();
}

void PrintDialog::usePrinterWithoutQueue(SharedPPD ppd, std::filesystem::path folder) {
  output = std::move(folder);
  Printer printer;
  printer.name = ppd->nickname ? ppd->nickname : ppd->modelname ? ppd->modelname : "";
  general->printers().setPrinters({printer}, destinationName(printer));
  general->printers().setStateText(printer.name, tr("jobs go to a folder"));
  takePPD(ppd);
}

void PrintDialog::showPrinters(const std::vector<Printer>& printers) {
  if (printers.empty())
    return noPrinters(tr("No printer is set up on this computer. Set one up, then look again."));
  Printer named;
  named.name = request.printer;
  named.instance = request.instance;
  const std::string destination = named.name.empty() ? "" : destinationName(named);
  if (general->printers().setPrinters(printers, destination)) return choosePrinter();
  note->say(tr("There is no printer “%1”. Choose another one.").arg(shownLine(destination)));
}

void PrintDialog::noPrinters(const QString& reason) {
  general->printers().setEmpty(tr("No printers"));
  note->say(reason, Note::Kind::warning, tr("&Look Again"));
}

void PrintDialog::choosePrinter() {
  const Printer& printer = *general->printers().selected();
  note->clear();
  if (current && queueOfSession == printer.name) {
    note->say(joined(markPrinter()));
    return switcher->showAgain();
  }
  endSession();
  buttons->setState(JobButtons::State::cannotPrint);
  note->say(tr("Reading the printer's settings…"), Note::Kind::information);
  browser.fetchPPD(printer.name);
  watchState();
  stateTimer->start(kStateInterval);
}

void PrintDialog::watchState() {
  if (const Printer* printer = general->printers().selected(); printer && output.empty())
    browser.readState(printer->name);
}

void PrintDialog::takePPD(const SharedPPD& ppd) {
  if (current) return;
  note->clear();
  beginSession(ppd);
}

// A printer without a PPD still prints; only its own settings cannot be shown.
void PrintDialog::goWithoutPPD(const QString& reason) {
  note->say(tr("%1 The document can be printed all the same, with the printer's usual settings.")
                .arg(reason));
  buttons->setState(JobButtons::State::ready);
}

void PrintDialog::beginSession(const SharedPPD& ppd) {
  queueOfSession = general->printers().selected()->name;
  current = std::make_unique<PrinterSession>(ppd);
  std::vector<std::string> problems = markPrinter();
  problems.push_back(current->loadPanels());
  note->say(joined(problems), Note::Kind::information);
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
  elsewhere.insert({"PageSize", "PageRegion"});
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

std::vector<std::string> PrintDialog::markPrinter() {
  const OptionList options = startOptions();
  const OptString pages = optionValue(options, kPagesPerSheetOption);
  const bool laidOut = layoutPane->suggestPagesPerSheet(pages ? integerValue(pages) : 1);
  current->setPagesPerSheet(layoutPane->pagesPerSheet());
  std::vector<std::string> problems = current->markAnew(options);
  if (!laidOut)
    problems.push_back(tr("A sheet can hold 1, 2, 4, 6, 9 or 16 pages, not “%1”.")
                           .arg(shownLine(*pages))
                           .toStdString());
  return problems;
}

}  // namespace tavrin

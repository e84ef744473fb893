#include <QTimer>

#include "host/dialog/GeneralArea.h"
#include "host/dialog/JobButtons.h"
#include "host/dialog/Note.h"
#include "host/dialog/PaneSwitcher.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/PrinterPopUp.h"
#include "platform/qt/ShownText.h"

namespace tavrin {

namespace {

constexpr int kStateInterval = 10'000;  // milliseconds

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

void PrintDialog::usePrinterWithoutQueue(const SharedPPD& ppd, std::filesystem::path folder) {
  output = std::move(folder);
  Printer printer;
  printer.name = ppd->nickname ? ppd->nickname : ppd->modelname ? ppd->modelname : "";
  general->printers().setPrinters({printer}, destinationName(printer));
  general->printers().setStateText(printer.name, tr("jobs go to a folder"));
  chosen = destinationName(printer);
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
  // Picking what is picked already changes nothing.
  if (const std::string last = std::exchange(chosen, destinationName(printer));
      current && chosen == last)
    return;
  note->clear();
  fillIn();
  if (current && queueOfSession == printer.name) {
    note->say(markPrinter());
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
  if (current) return;
  note->say(tr("%1 The document can be printed all the same, with the printer's usual settings.")
                .arg(reason));
  buttons->setState(JobButtons::State::ready);
}

}  // namespace tavrin

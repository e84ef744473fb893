#include "host/task/PrinterSearch.h"

namespace tavrin {
namespace {

constexpr int kStateInterval = 5'000;  // milliseconds

}  // namespace

PrinterSearch::PrinterSearch(QObject* parent) : QObject(parent) {
  connect(&browser, &PrinterBrowser::printersFound, this, &PrinterSearch::takePrinters);
  connect(&browser, &PrinterBrowser::printersFailed, this, &PrinterSearch::failed);
  connect(&browser, &PrinterBrowser::ppdReady, this,
          [this](const std::string& queue, const SharedPPD& ppd) {
            if (isChosen(queue)) emit settingsRead(ppd);
          });
  connect(&browser, &PrinterBrowser::ppdFailed, this,
          [this](const std::string& queue, const QString& reason) {
            if (isChosen(queue)) emit settingsFailed(reason);
          });
  connect(&browser, &PrinterBrowser::stateChanged, this, &PrinterSearch::setState);
  connect(&browser, &PrinterBrowser::stateFailed, this, [this](const std::string& queue) {
    setState(queue, {.activity = PrinterState::Activity::silent});
  });
  connect(&stateTimer, &QTimer::timeout, this, &PrinterSearch::watchChosen);
}

void PrinterSearch::look() {
  list = {};
  emit printersChanged();
  browser.findPrinters();
}

void PrinterSearch::takePrinters(const std::vector<Printer>& printers) {
  list = PrinterList(printers);
  emit printersChanged();
  emit found();
}

void PrinterSearch::choose(std::size_t place) {
  list.choose(place);
  emit printersChanged();
}

bool PrinterSearch::choose(const std::string& destination) {
  const bool isThere = list.choose(destination);
  emit printersChanged();
  return isThere;
}

void PrinterSearch::chooseNone() {
  list.chooseNone();
  emit printersChanged();
}

bool PrinterSearch::isChosen(const std::string& queue) const {
  return list.chosen() && list.chosen()->name == queue;
}

void PrinterSearch::readChosen() {
  browser.fetchPPD(list.chosen()->name);
  watchChosen();
  stateTimer.start(kStateInterval);
}

void PrinterSearch::watchChosen() {
  if (const Printer* printer = list.chosen()) browser.readState(printer->name);
}

void PrinterSearch::setState(const std::string& queue, const PrinterState& state) {
  list.setState(queue, state);
  emit printersChanged();
}

}  // namespace tavrin

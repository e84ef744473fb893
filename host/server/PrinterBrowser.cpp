#include "host/server/PrinterBrowser.h"

#include <memory>
#include <utility>

#include "host/server/PrinterPPD.h"

namespace tavrin {

template <class Value, class Call, class Take, class Complain>
void PrinterBrowser::ask(Call call, Take take, Complain complain) {
  background.run([=](const CancelFlag& cancel, const Background::Send& send) {
    // Shared, as an answer must be copyable and a PPD is not.
    const auto found = std::make_shared<Cancellable<Value>>(call(cancel));
    send([=] {
      if (*found)
        take(std::move(**found));
      else if (!found->cancelled())  // then nobody waits any more
        complain(QString::fromStdString(found->reason()));
    });
  });
}

void PrinterBrowser::findPrinters() {
  ask<std::vector<Printer>>(
      [](const CancelFlag& cancel) { return readPrinters(cancel); },
      [this](const std::vector<Printer>& printers) { emit printersFound(printers); },
      [this](const QString& reason) { emit printersFailed(reason); });
}

void PrinterBrowser::fetchPPD(const std::string& queue) {
  ask<PPDPtr>([queue](const CancelFlag& cancel) { return readPrinterPPD(queue, cancel); },
              [=, this](PPDPtr ppd) { emit ppdReady(queue, SharedPPD(std::move(ppd))); },
              [=, this](const QString& reason) { emit ppdFailed(queue, reason); });
}

void PrinterBrowser::readState(const std::string& queue) {
  ask<PrinterState>([queue](const CancelFlag& cancel) { return readPrinterState(queue, cancel); },
                    [=, this](const PrinterState& state) { emit stateChanged(queue, state); },
                    [=, this](const QString& reason) { emit stateFailed(queue, reason); });
}

}  // namespace tavrin

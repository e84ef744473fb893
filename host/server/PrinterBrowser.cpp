#include "host/server/PrinterBrowser.h"

#include <utility>

namespace tavrin {

namespace {

// Holds a result between two threads; an answer must be copyable, a result need not be.
template <class T>
std::shared_ptr<Result<T>> shared(Result<T> result) {
  return std::make_shared<Result<T>>(std::move(result));
}

template <class T>
QString reasonOf(const Result<T>& result) {
  return QString::fromStdString(result.reason());
}

}  // namespace

void PrinterBrowser::findPrinters() {
  background.run([this](const CancelFlag& cancel, const Background::Send& send) {
    send([this, found = readPrinters(cancel)] {
      if (found)
        emit printersFound(*found);
      else
        emit printersFailed(reasonOf(found));
    });
  });
}

void PrinterBrowser::fetchPPD(const std::string& queue) {
  background.run([this, queue](const CancelFlag& cancel, const Background::Send& send) {
    send([this, queue, ppd = shared(readPrinterPPD(queue, cancel))] {
      if (*ppd)
        emit ppdReady(queue, SharedPPD(std::move(**ppd)));
      else
        emit ppdFailed(queue, reasonOf(*ppd));
    });
  });
}

void PrinterBrowser::readState(const std::string& queue) {
  background.run([this, queue](const CancelFlag& cancel, const Background::Send& send) {
    send([this, queue, state = readPrinterState(queue, cancel)] {
      if (state)
        emit stateChanged(queue, *state);
      else
        emit stateFailed(queue, reasonOf(state));
    });
  });
}

}  // namespace tavrin

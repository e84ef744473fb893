#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QObject>
#include <QString>

#include "host/server/Destinations.h"
#include "host/support/Background.h"

// The print server's printers (Destinations.h) for a window that must not wait.

namespace tavrin {

// Looks for printers without holding up the window. Every request is answered by exactly one
// signal, later, unless the browser is gone by then; answers to several requests may come in any
// order, and each names its queue.
class PrinterBrowser : public QObject {
  Q_OBJECT

 public:
  explicit PrinterBrowser(QObject* parent = nullptr) : QObject(parent) {}

  void findPrinters();
  void fetchPPD(const std::string& queue);
  void readState(const std::string& queue);

 signals:
  void printersFound(const std::vector<tavrin::Printer>& printers);
  void ppdReady(const std::string& queue, const tavrin::SharedPPD& ppd);
  void stateChanged(const std::string& queue, const tavrin::PrinterState& state);
  // The requests' failures, each with its sentence.
  void printersFailed(const QString& reason);
  void ppdFailed(const std::string& queue, const QString& reason);
  void stateFailed(const std::string& queue, const QString& reason);

 private:
  Background background;
};

}  // namespace tavrin

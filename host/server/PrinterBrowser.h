#pragma once

#include <string>
#include <vector>

#include <QObject>
#include <QString>

#include "host/server/Destinations.h"
#include "host/support/Background.h"
#include "ppd/CupsHandles.h"

namespace tavrin {

// The print server's printers for a window that must not wait. Every request is answered by exactly
// one signal, later, unless the browser is gone by then; answers to several requests may come in
// any order, and each names its queue.
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
  // Makes a call in the background, then takes its value or the reason of its failure.
  template <class Value, class Call, class Take, class Complain>
  void ask(Call call, Take take, Complain complain);

  Background background;
};

}  // namespace tavrin

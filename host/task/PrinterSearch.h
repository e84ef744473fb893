#pragma once

#include <string>

#include <QObject>
#include <QTimer>

#include "host/server/PrinterBrowser.h"
#include "host/task/PrinterList.h"

namespace tavrin {

// The print server's printers as somebody chooses among them: it looks for them, reads the settings
// of the chosen one and watches what that one is doing. Nothing in it waits.
class PrinterSearch : public QObject {
  Q_OBJECT

 public:
  explicit PrinterSearch(QObject* parent = nullptr);

  const PrinterList& printers() const { return list; }

  // Forgets the printers and looks for them; answered by `found` or `failed`.
  void look();
  // As PrinterList does.
  void choose(std::size_t place);
  bool choose(const std::string& destination);
  void chooseNone();
  // Reads the chosen printer's settings; answered by `settingsRead` or `settingsFailed`, unless
  // another printer is chosen by then. From now on what the printer is doing is watched.
  void readChosen();

 signals:
  // There are other printers, another one is chosen, or one is doing something else.
  void printersChanged();
  // The printers are there, none of them chosen. There may be none at all.
  void found();
  void failed(const QString& reason);
  void settingsRead(const tavrin::SharedPPD& ppd);
  void settingsFailed(const QString& reason);

 private:
  void takePrinters(const std::vector<Printer>& printers);
  bool isChosen(const std::string& queue) const;
  void watchChosen();
  void setState(const std::string& queue, const PrinterState& state);

  PrinterList list;
  PrinterBrowser browser;
  QTimer stateTimer;
};

}  // namespace tavrin

#pragma once

#include <string>
#include <vector>

#include <QComboBox>

#include "host/server/Destinations.h"

namespace tavrin {

// The pop-up of printers, each with what it is doing beside its name.
class PrinterPopUp : public QComboBox {
  Q_OBJECT

 public:
  explicit PrinterPopUp(QWidget* parent);

  // Shows these printers and selects the one with that destination name ("queue/instance"), the
  // default one for an empty name. Whether there was such a printer; if not, none is selected.
  bool setPrinters(std::vector<Printer> printers, const std::string& destination);
  // Shows a sentence instead of printers.
  void setEmpty(const QString& sentence);

  // Null while no printer is selected.
  const Printer* selected() const;

  // What a queue is doing now, in words, in the rows of all its instances.
  void setStateText(const std::string& queue, const QString& text);
  QString stateText() const;  // the selected printer's

 signals:
  // The person has picked another printer or instance.
  void picked();

 private:
  int rowOf(const std::string& destination) const;
  void setRow(int row, const QString& state);

  std::vector<Printer> printers;
};

}  // namespace tavrin

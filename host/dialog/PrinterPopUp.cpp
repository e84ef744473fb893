#include "host/dialog/PrinterPopUp.h"

#include <algorithm>

#include "host/panes/Widgets.h"
#include "platform/qt/ShownText.h"

namespace tavrin {

namespace {

constexpr int kStateRole = Qt::UserRole;

}  // namespace

PrinterPopUp::PrinterPopUp(QWidget* parent) : QComboBox(parent) {
  setObjectName("printer");
  setAccessibleName(tr("Printer"));
  connect(this, &QComboBox::activated, this, &PrinterPopUp::picked);
}

bool PrinterPopUp::setPrinters(std::vector<Printer> thePrinters, const std::string& destination) {
  printers = std::move(thePrinters);
  clear();
  setPlaceholderText(tr("Choose a printer"));
  for (std::size_t row = 0; row < printers.size(); ++row) {
    addItem({});
    setRow(static_cast<int>(row), shownLine(tavrin::stateText(printers[row].state)));
  }
  letPopUpShrink(*this);
  setCurrentIndex(rowOf(destination));
  return currentIndex() >= 0;
}

void PrinterPopUp::setEmpty(const QString& sentence) {
  printers.clear();
  clear();
  setPlaceholderText(sentence);
  setCurrentIndex(-1);
  letPopUpShrink(*this);
}

const Printer* PrinterPopUp::selected() const {
  const auto row = static_cast<std::size_t>(currentIndex());
  return row < printers.size() ? &printers[row] : nullptr;
}

void PrinterPopUp::setStateText(const std::string& queue, const QString& text) {
  for (std::size_t row = 0; row < printers.size(); ++row)
    if (printers[row].name == queue) setRow(static_cast<int>(row), text);
}

QString PrinterPopUp::stateText() const { return currentData(kStateRole).toString(); }

int PrinterPopUp::rowOf(const std::string& destination) const {
  const auto found = std::ranges::find_if(printers, [&](const Printer& printer) {
    return destination.empty() ? printer.isDefault : destinationName(printer) == destination;
  });
  if (found != printers.end()) return static_cast<int>(found - printers.begin());
  // Without a default printer the first one is as good as any, and in sight.
  return destination.empty() && !printers.empty() ? 0 : -1;
}

void PrinterPopUp::setRow(int row, const QString& state) {
  const QString name = shownLine(destinationName(printers[static_cast<std::size_t>(row)]));
  setItemText(row,
              state.isEmpty() ? name : tr("%1 — %2", "printer and its state").arg(name, state));
  setItemData(row, state, kStateRole);
}

}  // namespace tavrin

#include "host/general/PrinterPopUp.h"

#include <map>

#include "host/general/PrinterItems.h"
#include "host/general/PrinterTexts.h"
#include "host/panes/Widgets.h"
#include "host/task/PrintTask.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {
namespace {

// What the pop-up says while no printer is chosen.
QString placeholder(PrintTask::Stage stage) {
  switch (stage) {
    case PrintTask::Stage::looking:
      return PrinterPopUp::tr("Looking for printers…");
    case PrintTask::Stage::noPrinters:
      return PrinterPopUp::tr("No printers");
    default:
      return PrinterPopUp::tr("Choose a printer");
  }
}

}  // namespace

PrinterPopUp::PrinterPopUp(PrintTask& theTask, QWidget* parent) : QComboBox(parent), task(theTask) {
  setObjectName("printer");
  setAccessibleName(tr("Printer"));
  setItemDelegate(makeChild<PrinterItems>(this));
  refresh();
  connect(&task, &PrintTask::printersChanged, this, &PrinterPopUp::refresh);
  connect(&task, &PrintTask::stageChanged, this, &PrinterPopUp::refresh);
  connect(this, &QComboBox::activated, this, &PrinterPopUp::choose);
}

void PrinterPopUp::choose(int index) {
  if (index == count() - 1) return task.usePDF();
  if (task.hasFolderPrinter()) return task.useFolder();
  task.choosePrinter(static_cast<std::size_t>(index));
}

// The PDF is the last one.
std::vector<PrinterPopUp::Row> PrinterPopUp::rows() const {
  std::vector<Row> all = printerRows();
  all.push_back({tr("Save as PDF"), tr("A file instead of paper")});
  return all;
}

std::vector<PrinterPopUp::Row> PrinterPopUp::printerRows() const {
  if (task.hasFolderPrinter())
    return {{shownLine(task.folderPrinterName()), tr("Jobs go to a folder")}};
  const std::vector<Printer>& printers = task.printers().entries();
  std::map<std::string, int> namesakes;
  for (const Printer& printer : printers) ++namesakes[titleOf(printer)];
  std::vector<Row> all;
  for (const Printer& printer : printers) {
    const QString title = shownLine(titleOf(printer));
    const bool isUnique = namesakes[titleOf(printer)] == 1;
    all.push_back({isUnique ? title : tr("%1 (%2)").arg(title, shownLine(destinationName(printer))),
                   printerDetails(printer)});
  }
  return all;
}

int PrinterPopUp::chosenRow() const {
  switch (task.target()) {
    case PrintTask::Target::file:
      return count() - 1;
    case PrintTask::Target::folder:
      return 0;
    case PrintTask::Target::queue:
      break;
  }
  const auto chosen = task.printers().chosenIndex();
  return chosen ? static_cast<int>(*chosen) : -1;
}

void PrinterPopUp::setRow(int index, const Row& row) {
  // A list of thousands is not drawn anew for one that has changed.
  if (itemText(index) == row.title && itemData(index, PrinterItems::kDetails) == row.details)
    return;
  setItemText(index, row.title);
  setItemData(index, row.details, PrinterItems::kDetails);
  setItemData(index, tr("%1, %2", "printer, details").arg(row.title, row.details),
              Qt::AccessibleTextRole);
}

// A list that is open keeps its place where only states have changed.
void PrinterPopUp::refresh() {
  const std::vector<Row> all = rows();
  const int number = static_cast<int>(all.size());
  const bool sameNumber = number == count();
  if (!sameNumber) clear();
  while (count() < number) addItem({});
  for (int index = 0; index < number; ++index) setRow(index, all[static_cast<std::size_t>(index)]);
  setPlaceholderText(placeholder(task.stage()));
  setCurrentIndex(chosenRow());
  setAccessibleDescription(currentData(PrinterItems::kDetails).toString());
  if (!sameNumber) letPopUpShrink(*this);
}

}  // namespace tavrin

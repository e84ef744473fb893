#include "host/dialog/PrinterPopUp.h"

#include "host/panes/Widgets.h"
#include "host/task/PrintTask.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {
namespace {

QString row(const std::string& name, const QString& state) {
  const QString shown = shownLine(name);
  return state.isEmpty() ? shown
                         : PrinterPopUp::tr("%1 — %2", "printer and its state").arg(shown, state);
}

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
  refresh();
  connect(&task, &PrintTask::printersChanged, this, &PrinterPopUp::refresh);
  connect(&task, &PrintTask::stageChanged, this, &PrinterPopUp::refresh);
  connect(this, &QComboBox::activated, this, [this](int index) {
    if (task.hasQueue()) task.choosePrinter(static_cast<std::size_t>(index));
  });
}

QStringList PrinterPopUp::rows() const {
  if (!task.hasQueue()) return {row(task.printerName(), tr("jobs go to a folder"))};
  QStringList all;
  for (const PrinterList::Entry& entry : task.printers().entries())
    all << row(destinationName(entry.printer), shownLine(entry.state));
  return all;
}

// A list that is open keeps its place where only states have changed.
void PrinterPopUp::refresh() {
  const QStringList texts = rows();
  const bool sameNumber = texts.size() == count();
  if (!sameNumber) {
    clear();
    addItems(texts);
  }
  for (int index = 0; sameNumber && index < count(); ++index) setItemText(index, texts[index]);
  setPlaceholderText(placeholder(task.stage()));
  const auto chosen = task.printers().chosenIndex();
  setCurrentIndex(!task.hasQueue() ? 0 : chosen ? static_cast<int>(*chosen) : -1);
  if (!sameNumber) letPopUpShrink(*this);
}

}  // namespace tavrin

#include "host/general/PrinterTexts.h"

#include <QCoreApplication>

#include "platform/qt/base/ShownText.h"

namespace tavrin {
namespace {

QString inOneLine(QStringList parts) {
  parts.removeAll("");
  return parts.join(" · ");
}

}  // namespace

QString printerDetails(const Printer& printer) {
  const bool isNamed = printer.description.empty() || printer.description == printer.name;
  const bool isDefault = printer.isDefault;
  return inOneLine({isNamed ? "" : shownLine(printer.name), shownLine(printer.location),
                    isDefault ? QCoreApplication::translate("PrinterTexts", "default") : "",
                    shownLine(stateText(printer.state))});
}

QString stateAndPlace(const Printer& printer) {
  const bool isGone = printer.state.activity == PrinterState::Activity::gone;
  return inOneLine(
      {shownLine(stateText(printer.state)), isGone ? "" : shownLine(printer.location)});
}

}  // namespace tavrin

#include "host/general/PrinterTexts.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

Printer studyPrinter() {
  Printer printer;
  printer.name = "tav";
  printer.description = "Photo printer";
  printer.location = "Study";
  printer.isDefault = true;
  printer.state.activity = PrinterState::Activity::idle;
  return printer;
}

TEST(PrinterTexts, TellOnePrinterFromAnotherInTheList) {
  Printer printer = studyPrinter();
  EXPECT_EQ(printerDetails(printer), "tav · Study · default · Ready");
  printer.description = "tav";
  printer.location = "";
  printer.isDefault = false;
  EXPECT_EQ(printerDetails(printer), "Ready") << "the title says the rest";
}

TEST(PrinterTexts, TellStateAndPlaceOfTheChosenPrinter) {
  Printer printer = studyPrinter();
  EXPECT_EQ(stateAndPlace(printer), "Ready · Study");
  printer.state.reasons = {"marker-supply-low-warning"};
  EXPECT_EQ(stateAndPlace(printer), "Ink low · Study");
  printer.state = {.activity = PrinterState::Activity::gone};
  EXPECT_EQ(stateAndPlace(printer), "There is no such printer any more.");
}

}  // namespace
}  // namespace tavrin

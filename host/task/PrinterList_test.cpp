#include "host/task/PrinterList.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

Printer printer(const char* name, const char* instance = "") {
  Printer made;
  made.name = name;
  made.instance = instance;
  made.state.activity = PrinterState::Activity::idle;
  return made;
}

TEST(PrinterList, FollowsWhatAQueueIsDoingInAllItsInstances) {
  PrinterList list({printer("attic"), printer("office"), printer("office", "draft")});
  list.setState("office", {.activity = PrinterState::Activity::silent});
  std::vector<std::string> states;
  for (const Printer& printer : list.entries()) states.push_back(stateText(printer.state));
  EXPECT_EQ(states, (std::vector<std::string>{"Ready", "Does not answer", "Does not answer"}));
}

TEST(PrinterList, ChoosesAnInstanceByItsName) {
  PrinterList list({printer("office"), printer("office", "draft")});
  EXPECT_EQ(list.chosen(), nullptr);
  EXPECT_TRUE(list.choose("office/draft"));
  EXPECT_EQ(list.chosen()->instance, "draft");
  EXPECT_FALSE(list.choose("cellar"));
  EXPECT_EQ(list.chosen(), nullptr);
}

TEST(PrinterList, ChoosesTheDefaultPrinterElseTheFirst) {
  std::vector<Printer> printers{printer("attic"), printer("office")};
  PrinterList plain(printers);
  EXPECT_TRUE(plain.choose(""));
  EXPECT_EQ(plain.chosenIndex(), 0u);
  printers[1].isDefault = true;
  PrinterList withDefault(printers);
  EXPECT_TRUE(withDefault.choose(""));
  EXPECT_EQ(withDefault.chosenIndex(), 1u);
  EXPECT_FALSE(PrinterList().choose(""));
}

}  // namespace
}  // namespace tavrin

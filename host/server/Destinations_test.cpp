#include "host/server/Destinations.h"

#include <future>
#include <span>
#include <sys/stat.h>
#include <thread>

#include <gtest/gtest.h>

#include "tests/servers/PrivateCupsd.h"
#include "tests/servers/SilentServerTest.h"

namespace tavrin {
namespace {

class DestinationsTest : public testing::Test {
 protected:
  PrivateCupsd cups;
};

TEST_F(DestinationsTest, AreQueuesAndInstancesWithTheirStates) {
  cups.addPlainQueue("tav");
  cups.addPlainQueue("other");
  cups.run({"lpoptions", "-p", "tav/draft", "-o", "PrintQuality=Draft"});
  cups.run({"lpadmin", "-d", "other"});
  cups.run({"cupsreject", "other"});
  // On a thread of its own, which knows this test's files.
  const auto printers = std::async(std::launch::async, [] { return readPrinters(); }).get();
  ASSERT_TRUE(printers) << printers.reason();
  std::vector<std::string> names;
  for (const Printer& printer : *printers) names.push_back(destinationName(printer));
  ASSERT_EQ(names, (std::vector<std::string>{"other", "tav", "tav/draft"}));
  EXPECT_TRUE(printers->at(0).isDefault);
  EXPECT_FALSE(printers->at(1).isDefault);
  EXPECT_EQ(stateText(printers->at(0).state), "Takes no new jobs");
  EXPECT_EQ(stateText(printers->at(1).state), "Ready");
  EXPECT_EQ(optionValue(printers->at(2).options, "PrintQuality"), "Draft");
}

// All that a list says, in one text a printer.
std::vector<std::string> told(const std::vector<Printer>& printers) {
  std::vector<std::string> lines;
  for (const Printer& printer : printers) {
    std::string line = destinationName(printer) + (printer.isDefault ? " default" : "");
    for (const auto& [name, value] : printer.options) line += " " + name + "=" + value;
    lines.push_back(line);
  }
  return lines;
}

std::vector<std::string> toldByLibcups() {
  cups_dest_t* first = nullptr;
  const int count = cupsGetDests2(CUPS_HTTP_DEFAULT, &first);
  std::vector<Printer> printers;
  for (const cups_dest_t& destination : std::span(first, static_cast<std::size_t>(count))) {
    Printer printer;
    printer.name = destination.name;
    printer.instance = destination.instance ? destination.instance : "";
    printer.isDefault = destination.is_default != 0;
    for (int i = 0; i < destination.num_options; ++i)
      if (const std::string name = destination.options[i].name;
          !name.starts_with("printer-") && !name.starts_with("marker-") && name != "device-uri")
        printer.options.emplace_back(name, destination.options[i].value);
    printers.push_back(printer);
  }
  cupsFreeDests(count, first);
  return told(printers);
}

TEST_F(DestinationsTest, AreThoseThatLibcupsTellsOf) {
  for (const char* name : {"tav", "Other", "third"}) cups.addPlainQueue(name);
  cups.run({"lpadmin", "-d", "Other"});
  cups.run({"lpadmin", "-p", "tav", "-o", "job-sheets-default=standard,none", "-o",
            "number-up-default=2", "-o", "orientation-requested-default=4", "-o",
            "print-quality-default=5"});
  cups.run({"lpoptions", "-p", "tav", "-o", "MediaType=IronOn", "-o", "note=two\\ words"});
  cups.run({"lpoptions", "-p", "tav/draft", "-o", "PrintQuality=Draft"});
  cups.run({"lpoptions", "-p", "third/fine", "-o", "PrintQuality=Best"});
  const auto same = [] {
    const auto printers = readPrinters();
    ASSERT_TRUE(printers) << printers.reason();
    EXPECT_EQ(told(*printers), toldByLibcups());
  };
  std::thread(same).join();
  cups.run({"lpoptions", "-d", "tav/draft"});
  std::thread(same).join();
}

TEST_F(DestinationsTest, TheEnvironmentNamesTheDefaultAsForLp) {
  for (const char* name : {"tav", "other"}) cups.addPlainQueue(name);
  cups.run({"lpoptions", "-p", "other/draft", "-o", "PrintQuality=Draft"});
  cups.run({"lpoptions", "-d", "tav"});
  const auto byDefault = [] {
    const auto printers = readPrinters();
    for (const Printer& printer : *printers)
      if (printer.isDefault) return destinationName(printer);
    return std::string();
  };
  EXPECT_EQ(byDefault(), "tav");
  setenv("PRINTER", "other", 1);
  EXPECT_EQ(byDefault(), "other");
  setenv("LPDEST", "other/draft", 1);
  EXPECT_EQ(byDefault(), "other/draft");
  setenv("LPDEST", "nowhere", 1);
  EXPECT_EQ(byDefault(), "tav");
  unsetenv("LPDEST");
  setenv("PRINTER", "lp", 1);
  EXPECT_EQ(byDefault(), "tav") << "which everybody has";
  unsetenv("PRINTER");
}

TEST_F(DestinationsTest, AFifoInPlaceOfSavedOptionsIsNotWaitedFor) {
  cups.addPlainQueue("tav");
  std::filesystem::create_directory(cups.folder() / "home/.cups");
  ASSERT_EQ(mkfifo((cups.folder() / "home/.cups/lpoptions").c_str(), 0600), 0);
  const auto printers = readPrinters();
  ASSERT_TRUE(printers) << printers.reason();
  EXPECT_EQ(printers->size(), 1u);
}

TEST_F(DestinationsTest, MayBeNone) {
  const auto printers = readPrinters();
  ASSERT_TRUE(printers) << printers.reason();
  EXPECT_TRUE(printers->empty());
}

TEST_F(DestinationsTest, TellTheStateOfAStoppedQueue) {
  cups.addPlainQueue("tav");
  cups.stopQueue("tav");
  const auto state = readPrinterState("tav");
  ASSERT_TRUE(state) << state.reason();
  EXPECT_EQ(state->activity, PrinterState::Activity::stopped);
  EXPECT_EQ(stateText(*state), "Stopped. Jobs will wait.");
  cups.run({"cupsdisable", "-r", "Filter failed", "tav"});
  EXPECT_EQ(stateText(*readPrinterState("tav")), "Stopped: Filter failed. Jobs will wait.");
}

TEST_F(DestinationsTest, TellThatAQueueIsGone) {
  const auto state = readPrinterState("nowhere");
  ASSERT_TRUE(state) << state.reason();
  EXPECT_EQ(state->activity, PrinterState::Activity::gone);
}

TEST_F(DestinationsTest, AreWhatPeopleCallThemAndWhereTheyStand) {
  cups.addPlainQueue("tav");
  cups.run({"lpadmin", "-p", "tav", "-D", "Photo printer \"Ada\"", "-L", "First floor, left"});
  cups.run({"lpoptions", "-p", "tav/draft", "-o", "PrintQuality=Draft"});
  const auto printers = readPrinters();
  ASSERT_TRUE(printers) << printers.reason();
  EXPECT_EQ(printers->at(0).description, "Photo printer \"Ada\"");
  EXPECT_EQ(printers->at(0).location, "First floor, left");
  EXPECT_EQ(titleOf(printers->at(1)), "Photo printer \"Ada\" (draft)");
}

TEST_F(SilentServerTest, HoldsUpNoListOfPrinters) {
  const auto printers = readPrinters(neverCancelled(), kLittle);
  ASSERT_FALSE(printers);
  EXPECT_EQ(printers.reason(), "The printers cannot be listed" + silence);
}

TEST_F(SilentServerTest, HoldsUpNoState) {
  const auto state = readPrinterState("tav", neverCancelled(), kLittle);
  ASSERT_FALSE(state);
  EXPECT_EQ(state.reason(), "The printer \"tav\" cannot be asked for its state" + silence);
}

TEST_F(SilentServerTest, HoldsUpNoListThatIsCancelled) {
  whileCancelling(
      [&](const CancelFlag& cancel) { EXPECT_TRUE(readPrinters(cancel, kForEver).cancelled()); });
}

TEST_F(SilentServerTest, IsNotTheSameAsNoServer) {
  server.stop();
  const auto printers = readPrinters();
  ASSERT_FALSE(printers);
  EXPECT_EQ(printers.reason(),
            "The print server at " + server.path() + " cannot be reached. Check that it runs.");
}

}  // namespace
}  // namespace tavrin

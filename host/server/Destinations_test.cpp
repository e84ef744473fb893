#include "host/server/Destinations.h"

#include <future>

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
  EXPECT_EQ(stateText(printers->at(0).state), "Idle, not accepting jobs");
  EXPECT_EQ(stateText(printers->at(1).state), "Idle");
  EXPECT_EQ(optionValue(printers->at(2).options, "PrintQuality"), "Draft");
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
  EXPECT_EQ(stateText(*state), "Stopped");
  cups.run({"cupsdisable", "-r", "Filter failed", "tav"});
  EXPECT_EQ(stateText(*readPrinterState("tav")), "Stopped: Filter failed");
}

TEST_F(DestinationsTest, NameAnUnknownQueue) {
  EXPECT_EQ(readPrinterState("nowhere").reason(),
            "The printer \"nowhere\" cannot be asked for its state: The printer or class does not "
            "exist.");
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

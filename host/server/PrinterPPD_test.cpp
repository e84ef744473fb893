#include "host/server/PrinterPPD.h"

#include <gtest/gtest.h>

#include "tests/servers/PrivateCupsd.h"
#include "tests/servers/SilentServerTest.h"

namespace tavrin {
namespace {

TEST(PrinterPPD, IsThePPDOfTheQueue) {
  const PrivateCupsd cups;
  cups.addPlainQueue("tav");
  const auto ppd = readPrinterPPD("tav");
  ASSERT_TRUE(ppd) << ppd.reason();
  EXPECT_NE(ppdFindOption(ppd->get(), "MediaType"), nullptr);
  EXPECT_EQ(readPrinterPPD("nowhere").reason(),
            "The description of the printer \"nowhere\" cannot be read: The printer or class does "
            "not exist.");
}

TEST(PrinterPPD, IsNotMissedWhereAQueueNeedsNone) {
  const PrivateCupsd cups;
  cups.run({"lpadmin", "-p", "raw", "-E", "-v", "capture:/nowhere"});
  EXPECT_EQ(readPrinterPPD("raw").reason(), "The printer \"raw\" has no settings to show.");
}

TEST(PrinterPPD, IsAskedForByAPlainNameOnly) {
  for (const char* name : {"", "a/b", "../a", "a b", "a?b", "a#b", "a%2Fb"})
    EXPECT_EQ(readPrinterPPD(name).reason(),
              "\"" + std::string(name) + "\" is not the name of a printer.");
}

TEST_F(SilentServerTest, HoldsUpNoPPD) {
  const auto ppd = readPrinterPPD("tav", neverCancelled(), kLittle);
  ASSERT_FALSE(ppd);
  EXPECT_EQ(ppd.reason(), "The description of the printer \"tav\" cannot be read" + silence);
}

TEST_F(SilentServerTest, HoldsUpNoPPDThatIsCancelled) {
  whileCancelling([&](const CancelFlag& cancel) {
    EXPECT_TRUE(readPrinterPPD("tav", cancel, kForEver).cancelled());
  });
}

}  // namespace
}  // namespace tavrin

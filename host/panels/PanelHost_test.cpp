#include "host/panels/PanelHost.h"

#include <gtest/gtest.h>

#include "tests/fakes/FakePPD.h"

namespace tavrin {
namespace {

class PanelHostTest : public testing::Test {
 protected:
  OptString marked(const char* key) const {
    const ppd_choice_t* choice = ppdFindMarkedChoice(ppd.get(), key);
    return choice ? OptString(choice->choice) : std::nullopt;
  }

  PPDPtr ppd = makePPD({paperTypeOption(), mirrorOption()});
  PanelHost host{ppd.get()};
};

TEST_F(PanelHostTest, HandsOutThePPDAndTheJob) {
  PDEPlugInCallback& seen = host;
  EXPECT_EQ(seen.ppdFile(), ppd.get());
  EXPECT_EQ(seen.printSettings()->value(kPMLayoutColumns), std::nullopt);
  EXPECT_EQ(seen.pageFormat()->paper(), nullptr);
  host.printSettings()->setValue(kPMLayoutColumns, "2");
  host.pageFormat()->setPaper("A4");
  EXPECT_EQ(seen.printSettings()->value(kPMLayoutColumns), "2");
  ASSERT_NE(seen.pageFormat()->paper(), nullptr);
  EXPECT_EQ(seen.pageFormat()->paper()->ppdPaperName(), "A4");
}

TEST_F(PanelHostTest, MarksTheChoiceAndTells) {
  OptString told;
  host.onWillChange = [&](const std::string& key, const OptString& choice) {
    EXPECT_EQ(key, "MediaType");
    EXPECT_EQ(marked("MediaType"), "IronOn");  // marked by then
    told = choice;
  };
  EXPECT_TRUE(host.willChangePPDOptionKeyValue("MediaType", "IronOn"));
  EXPECT_EQ(told, "IronOn");
}

TEST_F(PanelHostTest, MarksThePrintersMirrorOption) {
  EXPECT_TRUE(host.willChangePPDOptionKeyValue("Mirror", "True"));
  EXPECT_EQ(marked("Mirror"), "True");
}

TEST_F(PanelHostTest, KeepsThePrintersOwnSpelling) {
  EXPECT_TRUE(host.willChangePPDOptionKeyValue("mediatype", "ironon"));
  EXPECT_EQ(marked("MediaType"), "IronOn");
}

TEST_F(PanelHostTest, TellsButDoesNotMarkWhatThePrinterLacks) {
  const OptString before = marked("MediaType");
  int told = 0;
  host.onWillChange = [&](const std::string&, const OptString&) { ++told; };
  EXPECT_FALSE(host.willChangePPDOptionKeyValue("MediaType", std::nullopt));
  EXPECT_FALSE(host.willChangePPDOptionKeyValue("MediaType", "Parchment"));
  EXPECT_FALSE(host.willChangePPDOptionKeyValue("Scent", "Rose"));
  EXPECT_EQ(marked("MediaType"), before);
  EXPECT_EQ(told, 3);
}

TEST_F(PanelHostTest, WorksWithoutAPPD) {
  PanelHost bare(nullptr);
  EXPECT_FALSE(bare.willChangePPDOptionKeyValue("MediaType", "IronOn"));
}

TEST_F(PanelHostTest, TellsOfAnotherSize) {
  int resizes = 0;
  host.panelViewDidResize();  // nobody listens yet
  host.onResize = [&] { ++resizes; };
  host.panelViewDidResize();
  EXPECT_EQ(resizes, 1);
}

}  // namespace
}  // namespace tavrin

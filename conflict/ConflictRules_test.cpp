#include <gtest/gtest.h>

#include "tests/fixtures/ConflictTest.h"

namespace tavrin {
namespace {

using Codes = std::vector<int>;

class Detection : public ConflictTest {
 protected:
  OptString normalized(const std::string& paperName) {
    panel.format.name = paperName;
    return panel.checker->selectedPaperSize();
  }
};

TEST_F(Detection, AnOrdinaryJobHasNoConflict) { EXPECT_EQ(panel.codes(), Codes{}); }

TEST_F(Detection, OneCombinationCanClashSeveralTimes) {
  panel.setPaper("IronOn");
  panel.setQuality("Draft");
  panel.format.name = "EnvelopeDL";
  panel.settings.columns = "2";
  EXPECT_EQ(panel.codes(), (Codes{0, 2, 3}));
}

TEST_F(Detection, EachSpecialPaperClashesWithSizesAndLayoutsOfItsOwn) {
  const struct {
    const char* paper;
    Codes onBanner, onEnvelope, twoToASheet;
  } examples[] = {
      {"IronOn", {1}, {2}, {3}}, {"Transparency", {4}, {5}, {6}}, {"PhotoGlossy", {7}, {}, {}},
      {"Greeting", {9}, {}, {}}, {"Plain", {}, {}, {}},
  };
  for (const auto& example : examples) {
    SCOPED_TRACE(example.paper);
    panel.setPaper(example.paper);
    panel.format.name = "BannerBA4";
    EXPECT_EQ(panel.codes(), example.onBanner);
    panel.format.name = "EnvelopeDL";
    EXPECT_EQ(panel.codes(), example.onEnvelope);
    panel.format.name = "A4";
    panel.settings.columns = "2";
    EXPECT_EQ(panel.codes(), example.twoToASheet);
    panel.settings.columns = std::nullopt;
  }
}

TEST_F(Detection, OnlyIronOnPaperMindsDraftQuality) {
  panel.setQuality("Draft");
  for (const char* paper : {"Plain", "Transparency", "Greeting", "PhotoGlossy"}) {
    panel.setPaper(paper);
    EXPECT_EQ(panel.codes(), Codes{}) << paper;
  }
  panel.setPaper("IronOn");
  EXPECT_EQ(panel.codes(), Codes{0});
}

TEST_F(Detection, AnIgnoredDraftConflictStaysAwayInALaterPanel) {
  IGNORE_IRONON_DRAFT_CONFLICT = true;
  ConflictTestPanel later(ppd.get());
  for (ConflictTestPanel* each : {&panel, &later}) {
    each->setPaper("IronOn");
    each->setQuality("Draft");
    EXPECT_EQ(each->codes(), Codes{});
  }
}

TEST_F(Detection, IsoB5IsAnEnvelopeAndJapaneseB5IsNot) {
  panel.setMirror("True");
  panel.format.name = "ISOB5";
  EXPECT_EQ(panel.codes(), Codes{10});
  panel.format.name = "B5";
  EXPECT_EQ(panel.codes(), Codes{});
}

TEST_F(Detection, AnyGlossyPaperMindsBlackOnlyPrinting) {
  panel.setColor("Black");
  for (const char* paper : {"PhotoGlossy", "Glossy", "SemiGlossyFilm"}) {
    panel.setPaper(paper);
    EXPECT_EQ(panel.codes(), Codes{8}) << paper;
  }
  panel.setPaper("glossy");
  EXPECT_EQ(panel.codes(), Codes{});
}

TEST_F(Detection, BlackOnGlossyPaperWithTheColourCartridgeAlone) {
  panel.setPaper("PhotoGlossy");
  panel.setColor("Black");
  installCartridges("Color Standard", "Not installed");
  EXPECT_EQ(panel.codes(), (Codes{8, 11}));
}

TEST_F(Detection, ThePhotoCartridgeMindsBlackOnlyPrinting) {
  installCartridges("Color Standard", "Photo Standard");
  EXPECT_EQ(panel.codes(), Codes{});
  panel.setColor("Black");
  EXPECT_EQ(panel.codes(), Codes{12});
}

TEST_F(Detection, OldPaperNamesAreBroughtToTodays) {
  EXPECT_EQ(normalized("B5"), "B5JIS");
  EXPECT_EQ(normalized("ISOB5"), "EnvelopeB5");
  EXPECT_EQ(normalized("Env10"), "Envelope10");
  EXPECT_EQ(normalized("EnvDL"), "EnvelopeDL");
  EXPECT_EQ(normalized("EnvChou3"), "EnvelopeChokei3");
}

TEST_F(Detection, OtherPaperNamesStayAsTheyAre) {
  for (const char* name : {"A4", "B5JIS", "EnvelopeB5", "env10", "Env10 ", "EnvMonarch", ""}) {
    EXPECT_EQ(normalized(name), name);
  }
}

TEST_F(Detection, AFormatWithoutPaperOrAPaperWithoutNameHasNoSize) {
  panel.setPaper("IronOn");
  panel.setMirror("True");
  panel.format.name = std::nullopt;
  EXPECT_FALSE(panel.checker->selectedPaperSize().has_value());
  EXPECT_EQ(panel.codes(), Codes{});
  panel.format.name = "EnvelopeDL";
  panel.format.hasPaper = false;
  EXPECT_FALSE(panel.checker->selectedPaperSize().has_value());
  EXPECT_EQ(panel.codes(), Codes{});
}

TEST_F(Detection, AJobWithoutSettingsOrFormatHasNeitherSizeNorLayout) {
  const auto bare =
      TavConflictController::initWithSettings(nullptr, nullptr, ppd.get(), &panel.model);
  panel.setPaper("IronOn");
  panel.setQuality("Draft");
  EXPECT_EQ(bare->validateConflict(), Codes{0});
  EXPECT_FALSE(bare->hasPagesPerSheet());
}

TEST_F(Detection, SeveralPagesPerSheetAreTwoColumnsOrMore) {
  const std::pair<OptString, bool> examples[] = {
      {std::nullopt, false}, {"", false},    {"x", false},  {"x2", false}, {"0", false},
      {"1", false},          {"1.9", false}, {"-2", false}, {"2", true},   {" 2", true},
      {"2x", true},          {"+2", true},   {"10", true},  {"02", true},  {"99999999999", true}};
  for (const auto& [columns, several] : examples) {
    panel.settings.columns = columns;
    EXPECT_EQ(panel.checker->hasPagesPerSheet(), several) << columns.value_or("absent");
  }
}

TEST_F(Detection, NamesAreTestedByTheirParts) {
  const TavConflictController& checker = *panel.checker;
  EXPECT_TRUE(checker.isMediaTypePhoto("PhotoGlossy"));
  EXPECT_TRUE(checker.isMediaTypePhoto("Glossy"));
  EXPECT_FALSE(checker.isMediaTypePhoto("GLOSSY"));
  EXPECT_FALSE(checker.isMediaTypePhoto(std::nullopt));
  EXPECT_TRUE(checker.isPaperSizeEnvelope("MonarchEnvelope"));
  EXPECT_FALSE(checker.isPaperSizeEnvelope("envelope"));
  EXPECT_FALSE(checker.isPaperSizeEnvelope(std::nullopt));
  // Two letters are enough for a banner, wherever they stand.
  EXPECT_TRUE(checker.isPaperSizeBanner("BA"));
  EXPECT_TRUE(checker.isPaperSizeBanner("A3BAlbum"));
  EXPECT_FALSE(checker.isPaperSizeBanner("Banner"));
  EXPECT_FALSE(checker.isPaperSizeBanner("B A"));
  EXPECT_FALSE(checker.isPaperSizeBanner(std::nullopt));
}

TEST_F(Detection, ASizeCanBeBannerAndEnvelope) {
  panel.format.name = "EnvelopeBA";
  panel.setPaper("Transparency");
  panel.setMirror("True");
  EXPECT_EQ(panel.codes(), (Codes{4, 5, 10}));
}

TEST_F(Detection, AbsentAndOtherwiseWrittenTicketsEqualNothing) {
  panel.format.name = "EnvelopeBA";
  panel.settings.columns = "2";
  for (const OptString& paper : {OptString(), OptString("ironon"), OptString("IRONON")}) {
    panel.setPaper(paper);
    panel.setQuality("Draft");
    EXPECT_EQ(panel.codes(), Codes{});
  }
  panel.setMirror("true");
  panel.setColor("BLACK");
  panel.setPaper("PhotoGlossy");
  EXPECT_EQ(panel.codes(), Codes{7});
  panel.setMirror(std::nullopt);
  panel.setColor(std::nullopt);
  EXPECT_EQ(panel.codes(), Codes{7});
}

TEST_F(Detection, LookingForConflictsChangesNothing) {
  panel.setPaper("IronOn");
  panel.setQuality("Draft");
  const Codes first = panel.codes();
  EXPECT_EQ(panel.codes(), first);
  EXPECT_EQ(panel.model.paperTypeTicket(), "IronOn");
  EXPECT_EQ(countSet(kInstructionFlags) + countSet(kConflictFlags) + countSet(kIgnoreFlags), 0);
}

}  // namespace
}  // namespace tavrin

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "tests/fixtures/ConflictTest.h"

namespace tavrin {
namespace {

using Codes = std::vector<int>;

using Cartridges = ConflictTest;

TEST_F(Cartridges, ColourOnlyNeedsAnEmptySecondSlot) {
  const struct {
    OptString first, second;
    bool colorOnly, photo;
  } examples[] = {
      {"Color Standard", "Not installed", true, false},
      {"Color Standard", "Black Standard", false, false},
      {"Color Standard", "not installed", false, false},
      {"Color Standard", std::nullopt, false, false},
      {"Black Standard", "Not installed", false, false},
      {std::nullopt, "Not installed", false, false},
      {"Color Standard", "Photo Standard", false, true},
      {std::nullopt, "Photo Standard", false, true},
      {"Photo Standard", "Not installed", false, false},
      {"Photo Standard", "Photo Standard Plus", false, false},
  };
  for (const auto& example : examples) {
    installCartridges(example.first, example.second);
    SCOPED_TRACE(example.first.value_or("-") + " and " + example.second.value_or("-"));
    EXPECT_EQ(panel.checker->isColorCartOnly(), example.colorOnly);
    EXPECT_EQ(panel.checker->isPhotoCartInstalled(), example.photo);
  }
}

TEST_F(Cartridges, ThePreferencesAreReadAfreshEveryTime) {
  panel.setColor("Black");
  EXPECT_EQ(panel.codes(), Codes{});
  installCartridges("Color Standard", "Not installed");
  EXPECT_EQ(panel.codes(), Codes{11});
  installCartridges("Color Standard", "Photo Standard");
  EXPECT_EQ(panel.codes(), Codes{12});
  root.removePreferences(kTestYear);
  EXPECT_EQ(panel.codes(), Codes{});
}

TEST_F(Cartridges, PreferencesOfAnotherModelOrWithMissingLevelsSayNothing) {
  const std::string cart2 = "<dict><key>CartName</key><string>Photo Standard</string></dict>";
  const std::string current = "<dict><key>Cart2</key>" + cart2 + "</dict>";
  const std::string entry = "<dict><key>Current</key>" + current + "</dict>";
  const std::string sound = "<dict><key>" + kTestModel + "</key>" + entry + "</dict>";
  root.writePreferences(kTestYear, sound);
  ASSERT_TRUE(panel.checker->isPhotoCartInstalled());

  const std::string wrong[] = {
      "",
      "<string>Photo Standard</string>",
      "<array>" + entry + "</array>",
      "<dict/>",
      "<dict><key>Tavrin P2</key>" + entry + "</dict>",
      "<dict><key>" + kTestModel + "</key><string>Photo Standard</string></dict>",
      "<dict><key>" + kTestModel + "</key><dict><key>Former</key>" + current + "</dict></dict>",
      "<dict><key>" + kTestModel + "</key><dict><key>Current</key><array/></dict></dict>",
      "<dict><key>" + kTestModel +
          "</key><dict><key>Current</key><dict><key>Cart2</key><dict>"
          "<key>CartName</key><integer>1</integer></dict></dict></dict></dict>",
      sound.substr(0, sound.size() / 2),
  };
  for (const std::string& content : wrong) {
    root.writePreferences(kTestYear, content);
    EXPECT_FALSE(panel.checker->isPhotoCartInstalled()) << content;
    EXPECT_FALSE(panel.checker->isColorCartOnly()) << content;
  }
}

TEST_F(Cartridges, AFolderOrAPipeInThePreferencesPlaceSaysNothing) {
  std::filesystem::create_directory(root.preferencesFile(kTestYear));
  EXPECT_FALSE(panel.checker->isPhotoCartInstalled());
  std::filesystem::remove(root.preferencesFile(kTestYear));
  ASSERT_EQ(mkfifo(root.preferencesFile(kTestYear).c_str(), 0600), 0);
  EXPECT_FALSE(panel.checker->isPhotoCartInstalled());
}

TEST_F(Cartridges, ThePreferencesFileIsTheOneOfTheModelYear) {
  root.installCartridges("2008", kTestModel, std::nullopt, "Photo Standard");
  EXPECT_FALSE(panel.checker->isPhotoCartInstalled());
  root.installCartridges(kTestYear, kTestModel, std::nullopt, "Photo Standard");
  EXPECT_TRUE(panel.checker->isPhotoCartInstalled());
}

TEST_F(Cartridges, APrinterWithoutModelYearOrWithoutPPDHasNoCartridgeState) {
  root.installCartridges("", kTestModel, std::nullopt, "Photo Standard");
  root.installCartridges("(null)", kTestModel, std::nullopt, "Photo Standard");
  const PPDPtr yearless = makePPD(fullPrinter());
  for (ppd_file_t* printer : {yearless.get(), static_cast<ppd_file_t*>(nullptr)}) {
    ConflictTestPanel other(printer);
    other.setColor("Black");
    EXPECT_EQ(other.codes(), Codes{});
  }
}

TEST_F(Cartridges, AModelYearCannotLeadOutOfThePreferencesFolder) {
  const PPDPtr hostile =
      makePPD(fullPrinter(), {"*TavDriverPath: \"/Library/Printers/Tavrin/x/../../../x/y\""});
  ConflictTestPanel other(hostile.get());
  EXPECT_FALSE(other.checker->isPhotoCartInstalled());
}

}  // namespace
}  // namespace tavrin

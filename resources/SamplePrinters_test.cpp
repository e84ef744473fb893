#include <algorithm>
#include <filesystem>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/files/PropertyList.h"
#include "ppd/CupsHandles.h"
#include "ppd/PDETools.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

const fs::path kResources = TAVRIN_RESOURCES;

// What each sample printer is there to show.
struct Sample {
  const char* file;
  const char* year;
  const char* helpAttribute;  // the attribute that leads to the help book
  bool helpInstalled;
  int dryTime;        // 0 check box, 1 pop-up, -1 none
  const char* tray2;  // the marked choice of "Tray2Option"; null without the option
  StringEncoding encoding;
};

// So that a test is listed with the printer's name.
void PrintTo(const Sample& sample, std::ostream* out) { *out << sample.file; }

constexpr Sample kSamples[] = {
    {"tavrin-r420.ppd", "2006", "TavHelpPath", true, 1, "True", kUTF8Encoding},
    {"tavrin-r420-de.ppd", "2006", "TavHelpPath", true, 1, "True", kUTF8Encoding},
    {"tavrin-p520.ppd", "2007", "TavDriverPath", true, 0, "False", kUTF8Encoding},
    {"tavrin-p520-ja.ppd", "2007", "TavDriverPath", true, 0, "False", kUTF8Encoding},
    {"tavrin-d700.ppd", "Drivers", "TavDriverPath", true, 1, "True", kUTF8Encoding},
    {"tavrin-s120.ppd", "2007", "TavDriverPath", false, -1, nullptr, kUTF8Encoding},
};

class SamplePrinter : public testing::TestWithParam<Sample> {
 protected:
  SamplePrinter() : ppd(ppdOpenFile((kResources / "printers" / GetParam().file).c_str())) {
    if (ppd) ppdMarkDefaults(ppd.get());
  }

  std::vector<std::string> keywords(const char* option) {
    std::vector<std::string> found;
    const ppd_option_t* record = ppdFindOption(ppd.get(), option);
    for (int i = 0; record && i < record->num_choices; ++i) {
      found.emplace_back(record->choices[i].choice);
    }
    return found;
  }

  bool hasChoice(const char* option, const char* choice) {
    return ppdFindChoice(ppdFindOption(ppd.get(), option), choice) != nullptr;
  }

  PPDPtr ppd;
  PDETools tools;
};

TEST_P(SamplePrinter, ShowsWhatItIsThereToShow) {
  const Sample& sample = GetParam();
  ASSERT_TRUE(ppd);
  EXPECT_EQ(tools.getModelYear(ppd.get()), sample.year);
  EXPECT_EQ(tools.getPPDOptionUI("DupDryTime", ppd.get()), sample.dryTime);
  const OptString tray2 = tools.getPPDMarkedChoice("Tray2Option", ppd.get(), true);
  EXPECT_EQ(tray2, sample.tray2 ? OptString(sample.tray2) : std::nullopt);
  EXPECT_EQ(ppdFindOption(ppd.get(), "PaperSource") != nullptr, sample.tray2 != nullptr);
  EXPECT_EQ(tools.getEncodingFromPPD(ppd.get()), sample.encoding);
}

TEST_P(SamplePrinter, LeadsToItsHelp) {
  ASSERT_TRUE(ppd);
  const OptString path = tools.getComponentPath(GetParam().helpAttribute, ppd.get(), kUTF8Encoding);
  ASSERT_TRUE(path);
  const fs::path folder = kResources / "root" / fs::path(*path).relative_path();
  EXPECT_EQ(fs::is_directory(folder), GetParam().helpInstalled) << folder;
}

TEST_P(SamplePrinter, NamesThePanel) {
  ASSERT_TRUE(ppd);
  const OptString bundle = tools.getComponentPath("APDialogExtension", ppd.get(), kUTF8Encoding);
  ASSERT_TRUE(bundle);
  EXPECT_EQ(fs::path(*bundle).filename(), "TavrinPrintSettings.plugin");
}

// The panel turns a check box, a slider and its own defaults into choices by their place.
TEST_P(SamplePrinter, HasTheChoicesWhereThePanelLooksForThem) {
  ASSERT_TRUE(ppd);
  EXPECT_EQ(keywords("ColorModel"), (std::vector<std::string>{"Color", "Black"}));
  EXPECT_EQ(keywords("Sharpening"), (std::vector<std::string>{"Automatic", "0", "1", "2", "3", "4",
                                                              "5", "6", "7", "8", "9", "10"}));
  EXPECT_EQ(keywords("Mirror"), (std::vector<std::string>{"False", "True"}));
  for (const char* quality : {"Automatic", "Draft", "Normal"}) {
    EXPECT_TRUE(hasChoice("PrintQuality", quality)) << quality;
  }
  for (const char* paper : {"Automatic", "Plain", "IronOn", "Transparency", "Greeting"}) {
    EXPECT_TRUE(hasChoice("MediaType", paper)) << paper;
  }
}

TEST_P(SamplePrinter, HasAGlossyPaper) {
  ASSERT_TRUE(ppd);
  const auto papers = keywords("MediaType");
  EXPECT_TRUE(std::any_of(papers.begin(), papers.end(), [](const std::string& paper) {
    return paper.find("Glossy") != std::string::npos;
  }));
}

// Pop-ups are selected by title, so two choices of one option must not look alike.
TEST_P(SamplePrinter, TextsOfAnOptionDiffer) {
  ASSERT_TRUE(ppd);
  for (ppd_option_t* option = ppdFirstOption(ppd.get()); option;
       option = ppdNextOption(ppd.get())) {
    std::set<std::string> texts;
    for (int i = 0; i < option->num_choices; ++i) {
      EXPECT_TRUE(texts.insert(option->choices[i].text).second)
          << option->keyword << ": " << option->choices[i].text;
      EXPECT_TRUE(decodeUTF8(option->choices[i].text)) << option->choices[i].choice;
    }
  }
}

TEST_P(SamplePrinter, DefaultsGoTogether) {
  ASSERT_TRUE(ppd);
  EXPECT_EQ(ppdConflicts(ppd.get()), 0);
}

INSTANTIATE_TEST_SUITE_P(Samples, SamplePrinter, testing::ValuesIn(kSamples),
                         [](const auto& sample) {
                           std::string name = sample.param.file;
                           name.resize(name.size() - std::string(".ppd").size());
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

// A new sample printer belongs in the table above.
TEST(SamplePrinters, AreAllInTheTable) {
  std::set<std::string> listed, present;
  for (const Sample& sample : kSamples) listed.insert(sample.file);
  for (const auto& entry : fs::directory_iterator(kResources / "printers")) {
    present.insert(entry.path().filename());
  }
  EXPECT_EQ(present, listed);
}

// Every name that the conflict rules rewrite, before and after, and the names that they look at.
TEST(SamplePrinters, HaveEveryFormOfPaperName) {
  std::set<std::string> names;
  for (const Sample& sample : kSamples) {
    const PPDPtr ppd(ppdOpenFile((kResources / "printers" / sample.file).c_str()));
    ASSERT_TRUE(ppd);
    for (int i = 0; i < ppd->num_sizes; ++i) names.insert(ppd->sizes[i].name);
  }
  for (const char* name : {"B5", "B5JIS", "ISOB5", "EnvelopeB5", "Env10", "Envelope10", "EnvDL",
                           "EnvelopeDL", "EnvChou3", "EnvelopeChokei3", "EnvelopeC6", "A4BA",
                           "LetterBA", "A4", "Letter", "4x6", "100x150mm"}) {
    EXPECT_TRUE(names.count(name)) << name;
  }
}

// Where the cartridges of each sample printer are recorded.
TEST(SamplePrinters, HaveTheirCartridgesOnRecord) {
  for (const Sample& sample : kSamples) {
    const PPDPtr ppd(ppdOpenFile((kResources / "printers" / sample.file).c_str()));
    ASSERT_TRUE(ppd);
    const std::string file = std::string("com.tavrin.prefs.") + sample.year + ".plist";
    const auto list =
        readPropertyList(kResources / "root/Library/Printers/Tavrin/Preferences" / file);
    ASSERT_TRUE(list) << file;
    for (const char* slot : {"Cart1", "Cart2"}) {
      EXPECT_TRUE(list->stringAt({ppd->modelname, "Current", slot, "CartName"})) << sample.file;
    }
  }
}

}  // namespace
}  // namespace tavrin

#include <iostream>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "conflict/ConflictTest.h"

// Every combination of settings, paper, layout, cartridges and flags against the rules written
// down a second time, as tables.

namespace tavrin {
namespace {

// --- What can be combined, and what it counts as ---

enum Medium { otherMedium, ironOn, transparency, glossy, greeting, anyMedium };

const struct {
  OptString ticket;
  Medium medium;
} kPapers[] = {
    {std::nullopt, otherMedium},    {"Automatic", otherMedium}, {"Plain", otherMedium},
    {"ironon", otherMedium},        {"IronOn", ironOn},         {"Transparency", transparency},
    {"Greeting", greeting},         {"Glossy", glossy},         {"PhotoGlossy", glossy},
    {"GlossyGreetingFilm", glossy},
};

const struct {
  OptString ticket;
  bool draft;
} kQualities[] = {{std::nullopt, false}, {"Draft", true}, {"Normal", false}};

const struct {
  OptString ticket;
  bool black;
} kColors[] = {{std::nullopt, false}, {"Black", true}, {"Color", false}};

const struct {
  OptString ticket;
  bool on;
} kMirrors[] = {{std::nullopt, false}, {"True", true}, {"False", false}};

const struct {
  bool hasPaper;
  OptString name;
  bool banner;
  bool envelope;
} kSizes[] = {
    {false, "EnvelopeDL", false, false},
    {true, std::nullopt, false, false},
    {true, "A4", false, false},
    {true, "B5", false, false},
    {true, "B5JIS", false, false},
    {true, "ISOB5", false, true},
    {true, "EnvelopeB5", false, true},
    {true, "Env10", false, true},
    {true, "Envelope10", false, true},
    {true, "EnvDL", false, true},
    {true, "EnvelopeDL", false, true},
    {true, "EnvChou3", false, true},
    {true, "EnvelopeChokei3", false, true},
    {true, "EnvMonarch", false, false},
    {true, "Banner", false, false},
    {true, "BannerBA4", true, false},
    {true, "EnvelopeBA", true, true},
};

const struct {
  OptString columns;
  bool several;
} kLayouts[] = {{std::nullopt, false}, {"1", false}, {"2", true}, {"x", false}, {"10", true}};

enum Cartridges { otherCartridges, photoCartridge, colorOnly, anyCartridges };

const struct {
  bool hasFile;
  OptString first, second;
  Cartridges cartridges;
} kCartridgeSets[] = {
    {false, std::nullopt, std::nullopt, otherCartridges},
    {true, "Color Standard", "Photo Standard", photoCartridge},
    {true, "Color Standard", "Not installed", colorOnly},
    {true, "Color Standard", "Black Standard", otherCartridges},
};

// --- The rules: what must all be so, and which flags silence the code ---

enum Needs {
  nothing = 0,
  draft = 1,
  black = 2,
  mirrorOn = 4,
  banner = 8,
  envelope = 16,
  several = 32
};

bool& sizeShown = HAS_PAPERSIZE_INSTRUCTION;
bool& layoutShown = HAS_PAGESPERSHEET_INSTRUCTION;
bool& blackShown = HAS_PRINTINBLACK_INSTRUCTION;
bool& mirrorShown = HAS_MIRROR_INSTRUCTION;
bool& cartridgesShown = HAS_CARTINSTALLED_INSTRUCTION;

const struct Rule {
  Medium medium;
  Cartridges cartridges;
  int needs;
  std::vector<bool*> silencers;
} kRules[] = {
    /*  0 */ {ironOn, anyCartridges, draft, {&IGNORE_IRONON_DRAFT_CONFLICT}},
    /*  1 */ {ironOn, anyCartridges, banner, {&sizeShown}},
    /*  2 */ {ironOn, anyCartridges, envelope, {&sizeShown}},
    /*  3 */
    {ironOn, anyCartridges, several, {&layoutShown, &IGNORE_IRONON_PAGESPERSHEET_CONFLICT}},
    /*  4 */ {transparency, anyCartridges, banner, {&sizeShown}},
    /*  5 */ {transparency, anyCartridges, envelope, {&sizeShown}},
    /*  6 */
    {transparency,
     anyCartridges,
     several,
     {&layoutShown, &IGNORE_TRANSPARENCY_PAGESPERSHEET_CONFLICT}},
    /*  7 */ {glossy, anyCartridges, banner, {&sizeShown}},
    /*  8 */ {glossy, anyCartridges, black, {&blackShown}},
    /*  9 */ {greeting, anyCartridges, banner, {&sizeShown}},
    /* 10 */
    {anyMedium,
     anyCartridges,
     mirrorOn | envelope,
     {&mirrorShown, &IGNORE_MIRROR_ENVELOPE_CONFLICT}},
    /* 11 */ {anyMedium, colorOnly, black, {&cartridgesShown}},
    /* 12 */ {anyMedium, photoCartridge, black, {&cartridgesShown}},
};

using Codes = std::vector<int>;

struct Job {
  Medium medium;
  Cartridges cartridges;
  int facts;  // Needs that hold
};

// The codes whose conditions hold, whatever the flags.
Codes presentIn(const Job& job) {
  Codes codes;
  for (int code = 0; code < 13; ++code) {
    const Rule& rule = kRules[code];
    if (rule.medium != anyMedium && rule.medium != job.medium) continue;
    if (rule.cartridges != anyCartridges && rule.cartridges != job.cartridges) continue;
    if ((rule.needs & ~job.facts) == 0) codes.push_back(code);
  }
  return codes;
}

Codes notSilenced(const Codes& present) {
  Codes codes;
  for (const int code : present) {
    bool silenced = false;
    for (const bool* flag : kRules[code].silencers) silenced = silenced || *flag;
    if (!silenced) codes.push_back(code);
  }
  return codes;
}

class Walk : public ::testing::Test {
 protected:
  FreshConflicts fresh;
  PrinterRoot root;
  PPDPtr ppd = conflictTestPrinter();
  ConflictTestPanel panel{ppd.get()};
  long combinations = 0;
  long flagSettings = 0;
  std::map<int, long> seen;

  void walkJobs(Cartridges cartridges);
  void walkFlags(const Job& job);
  void expectCodes(const Codes& present);
  std::string description() const;
};

// Sets every combination of settings, paper and layout in turn.
void Walk::walkJobs(Cartridges cartridges) {
  for (const auto& size : kSizes) {
    panel.format.hasPaper = size.hasPaper;
    panel.format.name = size.name;
    const int ofSize = (size.banner ? banner : 0) | (size.envelope ? envelope : 0);
    for (const auto& layout : kLayouts) {
      panel.settings.columns = layout.columns;
      const int ofLayout = ofSize | (layout.several ? several : 0);
      for (const auto& paper : kPapers) {
        panel.model.setPaperTypeTicket(paper.ticket);
        for (const auto& quality : kQualities) {
          panel.model.setPrintQualityTicket(quality.ticket);
          for (const auto& color : kColors) {
            panel.model.setBlackAndWhiteTicket(color.ticket);
            for (const auto& mirror : kMirrors) {
              panel.model.setMIrrorTicket(mirror.ticket);
              walkFlags({paper.medium, cartridges,
                         ofLayout | (quality.draft ? draft : 0) | (color.black ? black : 0) |
                             (mirror.on ? mirrorOn : 0)});
              if (HasFailure()) return;
            }
          }
        }
      }
    }
  }
}

// Every setting of the flags that can silence a code that is present; then all other flags at
// once, which must silence nothing.
void Walk::walkFlags(const Job& job) {
  ++combinations;
  const Codes present = presentIn(job);
  std::set<bool*> matter;
  for (const int code : present) {
    ++seen[code];
    matter.insert(kRules[code].silencers.begin(), kRules[code].silencers.end());
  }
  const std::vector<bool*> flags(matter.begin(), matter.end());
  for (unsigned setting = 0; setting < 1u << flags.size(); ++setting) {
    for (std::size_t i = 0; i < flags.size(); ++i) *flags[i] = (setting >> i & 1) != 0;
    expectCodes(present);
  }
  for (bool* flag : flags) *flag = false;
  for (bool* flag : kInstructionFlags) *flag = !matter.contains(flag);
  for (bool* flag : kIgnoreFlags) *flag = !matter.contains(flag);
  for (bool* flag : kConflictFlags) *flag = true;
  expectCodes(present);
  forgetConflicts();
}

void Walk::expectCodes(const Codes& present) {
  ++flagSettings;
  EXPECT_EQ(panel.codes(), notSilenced(present)) << description();
}

std::string Walk::description() const {
  std::string flags;
  for (const auto& list : {kInstructionFlags, kConflictFlags}) {
    for (int i = 0; i < 5; ++i) flags += *list[i] ? '1' : '0';
  }
  for (const bool* flag : kIgnoreFlags) flags += *flag ? '1' : '0';
  const auto shown = [](const OptString& text) { return text.value_or("absent"); };
  return "paper " + shown(panel.model.paperTypeTicket()) + ", quality " +
         shown(panel.model.printQualityTicket()) + ", colour " +
         shown(panel.model.blackAndWhiteTicket()) + ", mirror " +
         shown(panel.model.mirrorTicket()) + ", size " +
         (panel.format.hasPaper ? shown(panel.format.name) : "no paper") + ", columns " +
         shown(panel.settings.columns) + ", flags " + flags;
}

TEST_F(Walk, EveryCombinationGivesTheCodesOfTheRules) {
  for (const auto& set : kCartridgeSets) {
    SCOPED_TRACE(set.first.value_or("-") + " and " + set.second.value_or("-"));
    root.removePreferences(kTestYear);
    if (set.hasFile) root.installCartridges(kTestYear, kTestModel, set.first, set.second);
    walkJobs(set.cartridges);
    if (HasFailure()) return;
  }
  for (int code = 0; code < 13; ++code) EXPECT_GT(seen[code], 0) << "code " << code;
  EXPECT_EQ(combinations, 17 * 5 * 10 * 3 * 3 * 3 * 4);
  std::cout << combinations << " combinations, with flags " << flagSettings << "\n";
}

}  // namespace
}  // namespace tavrin

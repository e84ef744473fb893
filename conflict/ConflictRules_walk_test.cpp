#include <ostream>
#include <set>
#include <tuple>

#include <gtest/gtest.h>

#include "tests/fixtures/ConflictTest.h"

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

struct Size {
  bool hasPaper;
  OptString name;
  bool banner;
  bool envelope;

  std::string inWords() const { return hasPaper ? name.value_or("absent") : "no paper"; }
  friend void PrintTo(const Size& size, std::ostream* out) { *out << size.inWords(); }
};

const Size kSizes[] = {
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

struct CartridgeSet {
  bool hasFile;
  OptString first, second;
  Cartridges cartridges;

  friend void PrintTo(const CartridgeSet& set, std::ostream* out) {
    *out << (set.hasFile ? *set.first + " and " + *set.second : "no record");
  }
};

const CartridgeSet kCartridgeSets[] = {
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

int factsOf(const Size& size) {
  return (size.banner ? banner : 0) | (size.envelope ? envelope : 0);
}

// One size of paper with one set of cartridges, and everything else in every combination.
class Walk : public testing::TestWithParam<std::tuple<Size, CartridgeSet>> {
 protected:
  FreshConflicts fresh;
  PrinterRoot root;
  PPDPtr ppd = conflictTestPrinter();
  ConflictTestPanel panel{ppd.get()};
  int combinations = 0;

  void SetUp() override;
  void walkSettings(Cartridges cartridges, int facts);
  void walkFlags(const Job& job);
  void expectCodes(const Codes& present);
  std::string description() const;
};

void Walk::SetUp() {
  const auto& [size, set] = GetParam();
  panel.format.hasPaper = size.hasPaper;
  panel.format.name = size.name;
  if (set.hasFile) root.installCartridges(kTestYear, kTestModel, set.first, set.second);
}

void Walk::walkSettings(Cartridges cartridges, int facts) {
  for (const auto& paper : kPapers) {
    panel.model.setPaperTypeTicket(paper.ticket);
    for (const auto& quality : kQualities) {
      panel.model.setPrintQualityTicket(quality.ticket);
      for (const auto& color : kColors) {
        panel.model.setBlackAndWhiteTicket(color.ticket);
        for (const auto& mirror : kMirrors) {
          panel.model.setMIrrorTicket(mirror.ticket);
          walkFlags({paper.medium, cartridges,
                     facts | (quality.draft ? draft : 0) | (color.black ? black : 0) |
                         (mirror.on ? mirrorOn : 0)});
          if (HasFailure()) return;
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
  for (const int code : present)
    matter.insert(kRules[code].silencers.begin(), kRules[code].silencers.end());
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
         shown(panel.model.mirrorTicket()) + ", size " + std::get<Size>(GetParam()).inWords() +
         ", columns " + shown(panel.settings.columns) + ", flags " + flags;
}

TEST_P(Walk, EveryCombinationGivesTheCodesOfTheRules) {
  const auto& [size, set] = GetParam();
  for (const auto& layout : kLayouts) {
    panel.settings.columns = layout.columns;
    walkSettings(set.cartridges, factsOf(size) | (layout.several ? several : 0));
    if (HasFailure()) return;
  }
  EXPECT_EQ(combinations, 5 * 10 * 3 * 3 * 3);
}

INSTANTIATE_TEST_SUITE_P(All, Walk,
                         testing::Combine(testing::ValuesIn(kSizes),
                                          testing::ValuesIn(kCartridgeSets)));

// A code that no combination has would be compared with nothing.
TEST(WalkTables, HaveEveryCode) {
  std::set<int> seen;
  for (const auto& size : kSizes)
    for (const auto& set : kCartridgeSets)
      for (const auto& paper : kPapers)
        for (const int code : presentIn({paper.medium, set.cartridges,
                                         factsOf(size) | draft | black | mirrorOn | several}))
          seen.insert(code);
  EXPECT_EQ(seen.size(), std::size(kRules));
}

}  // namespace
}  // namespace tavrin

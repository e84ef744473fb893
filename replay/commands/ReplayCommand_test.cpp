#include "replay/commands/ReplayCommand.h"

#include <sstream>

#include <gtest/gtest.h>

namespace tavrin {
namespace {

std::string reasonFor(const std::string& line) {
  auto parsed = parseCommand(line);
  return parsed ? "" : parsed.reason();
}

bool mentions(const std::string& text, const std::string& word) {
  return text.find(word) != std::string::npos;
}

TEST(ReplayCommand, ReadsEveryFieldOfOpen) {
  auto command =
      parseCommand(R"({"do":"open","panel":"a","ppd":"x.ppd","page":"A4","columns":"2",)"
                   R"("markDefaults":false,"marks":[["Mirror","True"],["Tray2Option","False"]]})");
  ASSERT_TRUE(command);
  EXPECT_EQ(command->verb, Verb::open);
  EXPECT_EQ(command->panel, "a");
  EXPECT_EQ(command->ppd, "x.ppd");
  EXPECT_EQ(command->page, "A4");
  EXPECT_EQ(command->columns, "2");
  EXPECT_FALSE(command->markDefaults);
  EXPECT_EQ(command->marks,
            (std::vector<MarkedChoice>{{"Mirror", "True"}, {"Tray2Option", "False"}}));
}

TEST(ReplayCommand, OpenWithoutItsOptionalFieldsHasTheirDefaults) {
  auto command = parseCommand(R"({"do":"open","ppd":null})");
  ASSERT_TRUE(command);
  EXPECT_FALSE(command->panel);
  EXPECT_FALSE(command->ppd);
  EXPECT_FALSE(command->page);
  EXPECT_FALSE(command->columns);
  EXPECT_TRUE(command->markDefaults);
  EXPECT_TRUE(command->marks.empty());
}

TEST(ReplayCommand, AnAnswerChoosesNothingAndClicksOkUnlessItSaysOtherwise) {
  auto command = parseCommand(R"({"do":"choose","control":"ibPaperType","index":2,)"
                              R"("answers":[{},{"choose":[2,3],"end":"ok"},{"end":"close"}]})");
  ASSERT_TRUE(command);
  EXPECT_EQ(command->control, "ibPaperType");
  EXPECT_EQ(command->index, 2);
  ASSERT_EQ(command->answers.size(), 3u);
  EXPECT_TRUE(command->answers[0].choose.empty());
  EXPECT_EQ(command->answers[0].end, WindowAnswer::End::ok);
  EXPECT_EQ(command->answers[1].choose, (std::vector<int>{2, 3}));
  EXPECT_EQ(command->answers[2].end, WindowAnswer::End::close);
}

TEST(ReplayCommand, APanelMayBeToldOfAnAbsentChoiceButNothingAbsentIsMarked) {
  EXPECT_TRUE(parseCommand(
      R"({"do":"PPDOptionKeyValueDidChange:ppdChoice:","key":"Mirror","choice":null})"));
  EXPECT_TRUE(mentions(reasonFor(R"({"do":"mark","key":"Mirror","choice":null})"), "\"choice\""));
}

TEST(ReplayCommand, NamesALineThatIsNotAnObject) {
  for (const char* line : {"{\"do\":", "[1]", "null", "open", "{} {}", "\"state\""})
    EXPECT_TRUE(mentions(reasonFor(line), line)) << line;
}

TEST(ReplayCommand, RefusesBytesThatAreNotUtf8) {
  EXPECT_NE(reasonFor("{\"do\":\"\xff\xfe\"}"), "");
}

TEST(ReplayCommand, ANulDoesNotEndALine) {
  using namespace std::string_literals;
  EXPECT_NE(reasonFor("{\"do\":\"state\"}\0{\"do\":"s), "");
  EXPECT_NE(reasonFor("{\"do\":\"state\"}\0"s), "");
}

TEST(ReplayCommand, NamesAnUnknownOrMissingVerb) {
  EXPECT_TRUE(mentions(reasonFor(R"({"do":"jump"})"), "\"jump\""));
  EXPECT_TRUE(mentions(reasonFor("{}"), "\"do\""));
  EXPECT_TRUE(mentions(reasonFor(R"({"do":7})"), "\"do\""));
}

TEST(ReplayCommand, NamesAFieldThatTheVerbDoesNotTake) {
  EXPECT_TRUE(mentions(reasonFor(R"({"do":"state","index":1})"), "\"index\""));
  EXPECT_TRUE(
      mentions(reasonFor(R"({"do":"PDEPanelsForType:","type":"x","panel":"1"})"), "\"panel\""));
}

TEST(ReplayCommand, NamesAFieldThatIsMissing) {
  EXPECT_TRUE(mentions(reasonFor(R"({"do":"choose","control":"ibPaperType"})"), "\"index\""));
  EXPECT_TRUE(mentions(reasonFor(R"({"do":"open"})"), "\"ppd\""));
}

TEST(ReplayCommand, NamesAFieldOfAnotherForm) {
  const std::pair<const char*, const char*> lines[] = {
      {R"({"do":"state","panel":1})", "\"panel\""},
      {R"({"do":"choose","control":"x","index":"1"})", "\"index\""},
      {R"({"do":"slide","control":"x","value":1.5})", "\"value\""},
      {R"({"do":"open","ppd":7})", "\"ppd\""},
      {R"({"do":"open","ppd":null,"markDefaults":1})", "\"markDefaults\""},
      {R"({"do":"open","ppd":null,"marks":[["Mirror"]]})", "\"marks\""},
      {R"({"do":"open","ppd":null,"marks":{}})", "\"marks\""},
      {R"({"do":"click","control":"x","answers":{}})", "\"answers\""},
      {R"({"do":"click","control":"x","answers":[1]})", "\"answers\""},
      {R"({"do":"click","control":"x","answers":[{"choose":[4]}]})", "\"choose\""},
      {R"({"do":"click","control":"x","answers":[{"choose":1}]})", "\"choose\""},
      {R"({"do":"click","control":"x","answers":[{"end":"later"}]})", "\"end\""},
      {R"({"do":"click","control":"x","answers":[{"wait":1}]})", "\"wait\""},
  };
  for (const auto& [line, field] : lines) EXPECT_TRUE(mentions(reasonFor(line), field)) << line;
}

TEST(ReplayCommand, SaysWhatMarksAre) {
  for (const char* marks : {"7", "[7]", R"(["Mirror"])", R"([["Mirror"]])", R"([["Mirror",null]])"})
    EXPECT_EQ(reasonFor(std::string(R"({"do":"open","ppd":null,"marks":)") + marks + "}"),
              "The field \"marks\" must be a list of pairs [key, choice] of texts.")
        << marks;
}

TEST(ReplayCommand, RefusesANumberThatWouldComeOutAsAnother) {
  EXPECT_TRUE(mentions(reasonFor(R"({"do":"choose","control":"x","index":18446744073709551615})"),
                       "\"index\""));
  EXPECT_EQ(reasonFor(R"({"do":"choose","control":"x","index":9223372036854775807})"), "");
}

TEST(ReplayCommand, RefusesATextThatACStringWouldCut) {
  EXPECT_TRUE(mentions(reasonFor(R"({"do":"unmark","key":"Mirror\u0000x"})"), "\"key\""));
}

TEST(ReplayCommand, ANameWithANulDoesNotCutTheReason) {
  EXPECT_TRUE(reasonFor(R"({"do":"state","a\u0000b":1})").ends_with("b\"."));
}

TEST(ReplayCommand, LinesEndWithALineEndOrTheScript) {
  std::istringstream script("one\n\ntwo");
  EXPECT_EQ(nextLine(script), "one");
  EXPECT_EQ(nextLine(script), "");
  EXPECT_EQ(nextLine(script), "two");
  EXPECT_EQ(nextLine(script), std::nullopt);
}

TEST(ReplayCommand, ALineThatIsTooLongIsRefusedAndThenPassedOver) {
  const std::string longest(kScriptLineLimit, ' ');
  std::istringstream script(longest + "\n" + longest + longest + "\n{}\n");
  EXPECT_EQ(nextLine(script), longest);
  const auto tooLong = nextLine(script);
  ASSERT_TRUE(tooLong);
  EXPECT_EQ(tooLong->size(), longest.size() + 1);
  EXPECT_TRUE(mentions(reasonFor(*tooLong), "too long"));
  EXPECT_EQ(nextLine(script), "{}");
  EXPECT_EQ(nextLine(script), std::nullopt);
}

// A line of nothing but brackets took hundreds of times its length.
TEST(ReplayCommand, ALineThatIsNestedTooDeepIsRefusedUnread) {
  EXPECT_EQ(kScriptLineLimit, 1024u * 1024);
  const auto lists = [](std::size_t depth) {
    return R"({"do":"state","x":)" + std::string(depth, '[') + std::string(depth, ']') + "}";
  };
  EXPECT_EQ(reasonFor(lists(kNestingLimit - 1)), R"(The command "state" has no field "x".)");
  EXPECT_TRUE(reasonFor(lists(kNestingLimit))
                  .starts_with("The line is nested too deep: brackets stand at most 32 deep in "
                               "each other. It begins: \"{\"do\":\"state\""));
  EXPECT_TRUE(mentions(reasonFor(std::string(kScriptLineLimit, '[')), "too deep"));
  EXPECT_TRUE(mentions(reasonFor(std::string(kNestingLimit + 1, '{')), "too deep"));
}

// It took minutes: each field was compared with all those before it.
TEST(ReplayCommand, ALineWithTooManyFieldsIsRefusedUnread) {
  std::string fields;
  for (int i = 1; i < kFieldLimit; ++i) fields += R"(,"a)" + std::to_string(i) + "\":0";
  EXPECT_EQ(reasonFor(R"({"do":"state")" + fields + "}"),
            R"(The command "state" has no field "a1".)");
  EXPECT_TRUE(
      reasonFor(R"({"do":"state")" + fields + R"(,"b":0})")
          .starts_with("The line has too many fields: a line has at most 4096. It begins: "));
}

TEST(ReplayCommand, BracketsInATextAndBesideEachOtherAreNotDeep) {
  const std::string brackets(kNestingLimit + 1, '[');
  EXPECT_EQ(reasonFor(R"({"do":"unmark","key":"\\\")" + brackets + R"("})"), "");
  std::string lists = "[]";
  for (int i = 0; i < 100; ++i) lists += ",[]";
  EXPECT_TRUE(mentions(reasonFor(R"({"do":"open","ppd":null,"marks":[)" + lists + "]}"), "pairs"));
}

TEST(ReplayCommand, ALongLineIsCutInTheReason) {
  EXPECT_LT(reasonFor(std::string(100000, 'x')).size(), 400u);
  EXPECT_LT(reasonFor(std::string(100000, '\x80')).size(), 400u);
}

TEST(ReplayCommand, ALongLineIsCutBetweenCharacters) {
  for (std::string line : {"", "x", "xx"}) {
    while (line.size() < 1000) line += "紙";
    EXPECT_TRUE(mentions(reasonFor(line), "紙...")) << reasonFor(line);
  }
}

}  // namespace
}  // namespace tavrin

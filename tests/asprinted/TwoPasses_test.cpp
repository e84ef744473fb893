#include <deque>

#include <gtest/gtest.h>

#include "host/task/PrintTask.h"
#include "tests/fakes/FakePDF.h"
#include "tests/fixtures/EventLoopTest.h"
#include "tests/servers/PrivateCupsd.h"

// Both sides of the paper by hand: what the printer gets in two passes, put on paper as a printer
// and a person do it.

namespace tavrin {
namespace {

namespace fs = std::filesystem;

using Stage = PrintTask::Stage;
using BackOrder = JobSequence::BackOrder;
using Sheet = std::vector<std::string>;  // what is on its front, and on its back

constexpr char kQueue[] = "tav";

// A printer that prints on the upper side of a sheet and puts it on the others, that side up.
class PaperPath {
 public:
  enum class Feed { fromTheTop, fromTheBottom };

  explicit PaperPath(Feed theFeed) : feed(theFeed) {}

  void load(std::size_t count) { tray.assign(count, {}); }
  void print(const std::vector<std::string>& pages) {
    for (const std::string& page : pages) {
      ASSERT_FALSE(tray.empty()) << "another sheet is wanted for “" << page << "”";
      Sheet sheet = feed == Feed::fromTheTop ? tray.back() : tray.front();
      feed == Feed::fromTheTop ? tray.pop_back() : tray.pop_front();
      sheet.push_back(page);
      output.push_back(sheet);
    }
  }
  // The whole stack: its lowest sheet is the uppermost one in the tray.
  void turnStack() {
    tray.assign(output.rbegin(), output.rend());
    output.clear();
  }
  std::vector<Sheet> sheets() const {
    std::vector<Sheet> all(output.begin(), output.end());
    std::ranges::sort(all);
    return all;
  }

 private:
  Feed feed;
  std::deque<Sheet> tray;  // the uppermost one last
  std::deque<Sheet> output;
};

class TwoPassesTest : public EventLoopTest {
 protected:
  // The sample printer that cannot turn the paper, without its panel, and with that line instead.
  void addPrinter(const std::string& line = "*% nothing else") {
    std::string ppd = test::textOf(fs::path(SAMPLE_PRINTERS) / "tavrin-s120.ppd");
    const auto begin = ppd.find("*APDialogExtension");
    ppd.replace(begin, ppd.find('\n', begin) - begin, line);
    cups.addQueue(kQueue, place.write("printer.ppd", ppd));
  }
  // The words on each page, in their order.
  std::vector<std::string> pagesOf(int job) const {
    const fs::path pdf = place.write("pass.pdf", cups.waitForJob(job).data);
    const fs::path text = place.path() / "text";
    const std::string command = "pdftotext '" + pdf.string() + "' '" + text.string() + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);  // NOLINT(cert-env33-c)
    std::vector<std::string> pages{""};
    for (const char letter : test::textOf(text)) {
      if (letter == '\f')
        pages.emplace_back();
      else if (letter != '\n' && letter != ' ')
        pages.back() += letter;
    }
    pages.pop_back();
    return pages;
  }
  // The sheets as they lie before the person in the end.
  std::vector<Sheet> printed(int pages, const OptionList& options,
                             PaperPath::Feed feed = PaperPath::Feed::fromTheTop,
                             BackOrder order = BackOrder::same) {
    JobRequest request;
    request.printer = kQueue;
    request.document = place.write("pages.pdf", numberedPDF(pages));
    request.options = options;
    PrintTask task(request);
    task.usePrintServer();
    EXPECT_TRUE(eventually([&] { return task.stage() == Stage::ready; }));
    task.print();
    EXPECT_TRUE(eventually([&] { return task.stage() == Stage::turning; })) << task.notice().text;
    task.printBacks(order);
    EXPECT_TRUE(eventually([&] { return task.stage() == Stage::done; })) << task.notice().text;
    const auto fronts = pagesOf(1);
    PaperPath printer(feed);
    printer.load(fronts.size());
    printer.print(fronts);
    printer.turnStack();
    printer.print(pagesOf(2));
    return printer.sheets();
  }

  PrivateCupsd cups;
  test::TemporaryFolder place;
};

OptionList onBothSides(OptionList options = {}) {
  options.emplace_back("sides", "two-sided-long-edge");
  return options;
}

const std::vector<Sheet> kFivePages{{"F1", "F2"}, {"F3", "F4"}, {"F5", ""}};

TEST_F(TwoPassesTest, EveryBackIsOnItsFront) {
  addPrinter();
  EXPECT_EQ(printed(5, onBothSides()), kFivePages);
}

TEST_F(TwoPassesTest, AlsoAlongTheShortEdge) {
  addPrinter();
  EXPECT_EQ(printed(5, {{"sides", "two-sided-short-edge"}}), kFivePages);
}

TEST_F(TwoPassesTest, AlsoWhereThePrinterBeginsWithTheLastSheet) {
  addPrinter("*DefaultOutputOrder: Reverse");
  EXPECT_EQ(printed(5, onBothSides()), kFivePages);
}

TEST_F(TwoPassesTest, AlsoWhereThePersonDoes) {
  addPrinter();
  EXPECT_EQ(printed(5, onBothSides({{"outputorder", "reverse"}})), kFivePages);
}

TEST_F(TwoPassesTest, AlsoOfAnEvenNumberOfSheets) {
  addPrinter();
  EXPECT_EQ(printed(8, onBothSides()),
            (std::vector<Sheet>{{"F1", "F2"}, {"F3", "F4"}, {"F5", "F6"}, {"F7", "F8"}}));
}

TEST_F(TwoPassesTest, AlsoOfSomeOfThePages) {
  addPrinter();
  EXPECT_EQ(printed(8, onBothSides({{"page-ranges", "2-3,6"}})),
            (std::vector<Sheet>{{"F2", "F3"}, {"F6", ""}}));
}

TEST_F(TwoPassesTest, AlsoWithTwoPagesOnASheet) {
  addPrinter();
  EXPECT_EQ(printed(5, onBothSides({{"number-up", "2"}})),
            (std::vector<Sheet>{{"F1F2", "F3F4"}, {"F5", ""}}));
}

TEST_F(TwoPassesTest, AlsoOfSeveralCopies) {
  addPrinter();
  EXPECT_EQ(printed(3, onBothSides({{"copies", "2"}, {"sheet-collate", "collated"}})),
            (std::vector<Sheet>{{"F1", "F2"}, {"F1", "F2"}, {"F3", ""}, {"F3", ""}}));
}

// Folded in the middle, the pages of these follow one another.
TEST_F(TwoPassesTest, MakeABooklet) {
  addPrinter();
  EXPECT_EQ(printed(8, {{"sides", "two-sided-short-edge"}, {"booklet", "true"}}),
            (std::vector<Sheet>{{"F6F3", "F4F5"}, {"F8F1", "F2F7"}}));
}

TEST_F(TwoPassesTest, ALongBookletHasEmptyPagesAtItsEnd) {
  addPrinter("*DefaultOutputOrder: Reverse");
  EXPECT_EQ(printed(5, {{"sides", "two-sided-short-edge"}, {"booklet", "true"}}),
            (std::vector<Sheet>{{"F1", "F2"}, {"F3", "F4F5"}}));
}

// The check box is for these.
TEST_F(TwoPassesTest, APrinterThatFeedsFromTheBottomWantsTheBacksTheOtherWayRound) {
  addPrinter();
  EXPECT_EQ(printed(5, onBothSides(), PaperPath::Feed::fromTheBottom, BackOrder::reversed),
            kFivePages);
}

TEST_F(TwoPassesTest, AlsoWhereItBeginsWithTheLastSheet) {
  addPrinter("*DefaultOutputOrder: Reverse");
  EXPECT_EQ(printed(5, onBothSides(), PaperPath::Feed::fromTheBottom, BackOrder::reversed),
            kFivePages);
}

TEST_F(TwoPassesTest, SuchAPrinterIsWhyTheOrderCanBeChanged) {
  addPrinter();
  EXPECT_EQ(printed(4, onBothSides(), PaperPath::Feed::fromTheBottom),
            (std::vector<Sheet>{{"F1", "F4"}, {"F3", "F2"}}));
}

}  // namespace
}  // namespace tavrin

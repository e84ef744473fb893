#include "host/task/JobSequence.h"

#include <sys/stat.h>

#include <nlohmann/json.hpp>

#include "host/request/JobSetting.h"
#include "tests/fakes/FakePDF.h"
#include "tests/fixtures/EventLoopTest.h"
#include "tests/fixtures/PDFTexts.h"
#include "tests/fixtures/SeenDocuments.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

using BackOrder = JobSequence::BackOrder;
using Pages = std::vector<std::string>;

// Jobs that become folders. All that a sequence says is kept in one text.
class JobSequenceTest : public EventLoopTest {
 protected:
  JobSequenceTest() {
    QObject::connect(&sequence, &JobSequence::paperToBeTurned, [this] { diary += "turn "; });
    QObject::connect(&sequence, &JobSequence::finished, [this](const JobReport& job) {
      diary += "finished ";
      report = job;
    });
    QObject::connect(&sequence, &JobSequence::cancelled, [this] { diary += "cancelled "; });
    QObject::connect(&sequence, &JobSequence::nothingLeft, [this](const QString& why) {
      diary += "nothing ";
      reason = why.toStdString();
    });
    QObject::connect(&sequence, &JobSequence::failed, [this](const QString& why) {
      diary += "failed ";
      reason = why.toStdString();
    });
    QObject::connect(&sequence, &JobSequence::folderRefused, [this] { diary += "refused "; });
  }
  fs::path pdf(const std::string& fileName, int pages) {
    return place.write(fileName, numberedPDF(pages));
  }
  // On a printer that prints on one side.
  JobSequence::Order order(const std::vector<fs::path>& documents, const OptionList& options = {}) {
    seen.emplace(documents);
    return {
        test::preparationFor(seen->facts(), fs::path(SAMPLE_PRINTERS) / "tavrin-s120.ppd", options),
        {},
        output};
  }
  JobSequence::Order twoPasses(const std::vector<fs::path>& documents) {
    JobSequence::Order both = order(documents);
    both.preparation.wholeSheets = true;
    both.inTwoPasses = true;
    return both;
  }
  // A document that nobody ever writes, so that sending it never ends.
  JobSequence::Order endless() {
    JobSequence::Order waiting = order({pdf("a.pdf", 1)});
    const fs::path pipe = place.path() / "pipe";
    EXPECT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    waiting.preparation.documents.push_back({pipe});
    return waiting;
  }
  // Starts it; what it says until it says that.
  const std::string& diaryUntil(const std::string& word) {
    EXPECT_TRUE(eventually([&] { return diary.find(word) != std::string::npos; })) << diary;
    return diary;
  }
  const std::string& run(const JobSequence::Order& wanted, const std::string& word) {
    diary.clear();
    sequence.start(wanted);
    return diaryUntil(word);
  }
  // The names of the folders that are there, in order, also of those that are being made.
  std::vector<std::string> folders() const {
    std::vector<std::string> names;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(output, none))
      names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
  }
  std::string optionOf(const std::string& folder, const char* option) const {
    const auto ticket = nlohmann::json::parse(test::textOf(output / folder / "ticket.json"));
    return ticket["options"].value(option, "");
  }

  using Names = std::vector<std::string>;

  test::TemporaryFolder place;
  fs::path output = place.path() / "jobs";
  std::optional<test::SeenDocuments> seen;
  JobSequence sequence;
  std::string diary;
  std::string reason;
  JobReport report;
};

TEST_F(JobSequenceTest, MakesAJobOfEachDocument) {
  const auto wanted = order({pdf("a.pdf", 2), place.write("b.txt", "Dear Ada,\n"), pdf("c.pdf", 1)},
                            {{"Mirror", "True"}});
  EXPECT_EQ(sequence.count(), 0U);
  EXPECT_EQ(run(wanted, "finished"), "finished ");
  EXPECT_EQ(sequence.count(), 3U);
  EXPECT_EQ(sequence.sent(), 3U);
  EXPECT_EQ(folders(), (Names{"a.pdf", "b.txt", "c.pdf"}));
  for (const std::string& folder : folders()) EXPECT_EQ(optionOf(folder, "Mirror"), "True");
  EXPECT_EQ(test::textOf(output / "b.txt" / "b.txt"), "Dear Ada,\n");
}

TEST_F(JobSequenceTest, SendsWhatHasBeenMadeReady) {
  run(order({pdf("a.pdf", 8)}, {{"number-up", "2"}, {"page-ranges", "2-5"}}), "finished");
  EXPECT_EQ(test::textsOf(output / "a.pdf" / "a.pdf"), (Pages{"F2 F3", "F4 F5"}));
  EXPECT_EQ(optionOf("a.pdf", "number-up"), "1");
  EXPECT_EQ(optionOf("a.pdf", "page-ranges"), "1-") << "all of the sheets";
  EXPECT_EQ(report.folder, output / "a.pdf");
}

TEST_F(JobSequenceTest, NamesAJobOfSeveralPicturesSo) {
  const std::string dot = std::string("P6 1 1 255\n") + "abc";
  const std::vector<fs::path> pictures{place.write("a.ppm", dot), place.write("b.ppm", dot),
                                       place.write("c.ppm", dot)};
  run(order(pictures, {{kTogetherOption, kTogether}, {"number-up", "4"}}), "finished");
  ASSERT_EQ(folders(), Names{"a.ppm and 2 more"});
}

TEST_F(JobSequenceTest, PrintsFrontsThenBacks) {
  EXPECT_EQ(run(twoPasses({pdf("a.pdf", 3)}), "turn"), "turn ");
  EXPECT_EQ(folders(), Names{"a.pdf"});
  EXPECT_EQ(sequence.sent(), 0U) << "it has but its fronts";
  EXPECT_TRUE(sequence.hasBareFronts());
  sequence.printBacks(BackOrder::same);
  EXPECT_EQ(diaryUntil("finished"), "turn finished ");
  EXPECT_EQ(folders(), (Names{"a.pdf", "a.pdf-2"}));
  EXPECT_EQ(sequence.sent(), 1U);
  EXPECT_EQ(test::textsOf(output / "a.pdf" / "a.pdf"), (Pages{"F1", "F3"}));
  EXPECT_EQ(test::textsOf(output / "a.pdf-2" / "a.pdf"), (Pages{"F2", ""}));
}

TEST_F(JobSequenceTest, PrintsBacksInTheOtherOrder) {
  run(twoPasses({pdf("a.pdf", 4)}), "turn");
  EXPECT_EQ(optionOf("a.pdf", "outputorder"), "");
  sequence.printBacks(BackOrder::reversed);
  diaryUntil("finished");
  EXPECT_EQ(optionOf("a.pdf-2", "outputorder"), "reverse");
}

TEST_F(JobSequenceTest, TurnsNoPaperForADocumentWithoutABack) {
  EXPECT_EQ(run(twoPasses({pdf("a.pdf", 1)}), "finished"), "finished ");
  EXPECT_EQ(folders(), Names{"a.pdf"});
}

// The fronts are not printed again for the sake of the backs.
TEST_F(JobSequenceTest, PrintsBacksAgainThatCouldNotBeSent) {
  run(twoPasses({pdf("a.pdf", 2)}), "turn");
  const fs::path moved = place.path() / "moved";
  fs::rename(output, moved);
  place.write("jobs", "in the way");
  sequence.printBacks(BackOrder::same);
  EXPECT_EQ(diaryUntil("refused"), "turn refused ");
  EXPECT_TRUE(sequence.isWaitingForPaper());
  fs::remove(output);
  fs::rename(moved, output);
  sequence.printBacks(BackOrder::same);
  EXPECT_EQ(diaryUntil("finished"), "turn refused finished ");
  EXPECT_EQ(folders(), (Names{"a.pdf", "a.pdf-2"}));
}

TEST_F(JobSequenceTest, TurnsThePaperOfEachDocument) {
  run(twoPasses({pdf("a.pdf", 2), pdf("b.pdf", 2)}), "turn");
  sequence.printBacks(BackOrder::same);
  EXPECT_EQ(diaryUntil("turn turn"), "turn turn ");
  EXPECT_EQ(folders(), (Names{"a.pdf", "a.pdf-2", "b.pdf"}));
  EXPECT_EQ(sequence.sent(), 1U);
  sequence.printBacks(BackOrder::same);
  EXPECT_EQ(diaryUntil("finished"), "turn turn finished ");
  EXPECT_EQ(test::textsOf(output / "b.pdf-2" / "b.pdf"), Pages{"F2"});
}

TEST_F(JobSequenceTest, PrintsBacksOnlyOnPaperThatIsToBeTurned) {
  sequence.printBacks(BackOrder::same);
  run(order({pdf("a.pdf", 2)}), "finished");
  sequence.printBacks(BackOrder::same);
  run(twoPasses({pdf("b.pdf", 2)}), "turn");
  sequence.printBacks(BackOrder::same);
  sequence.printBacks(BackOrder::same);
  diaryUntil("finished");
  EXPECT_EQ(folders(), (Names{"a.pdf", "b.pdf", "b.pdf-2"}));
}

TEST_F(JobSequenceTest, CanBeCancelledBeforeItHasBegun) {
  const auto wanted = order({pdf("a.pdf", 8)}, {{"scaling", "50"}});
  sequence.start(wanted);
  sequence.cancel();
  EXPECT_EQ(diary, "") << "it answers from the event loop";
  EXPECT_EQ(diaryUntil("cancelled"), "cancelled ");
  EXPECT_EQ(run(wanted, "finished"), "finished ") << "it can begin again";
  EXPECT_EQ(folders(), Names{"a.pdf"});
}

TEST_F(JobSequenceTest, CanBeCancelledWhileTheDocumentsArePrepared) {
  const auto wanted = order({pdf("a.pdf", 8)}, {{"scaling", "50"}});
  const fs::path temporary = place.path() / "temporary";
  fs::create_directory(temporary);
  setenv("TMPDIR", temporary.c_str(), 1);
  sequence.start(wanted);
  EXPECT_TRUE(eventually([&] { return !fs::is_empty(temporary); }));
  sequence.cancel();
  EXPECT_EQ(diaryUntil("cancelled"), "cancelled ");
  EXPECT_TRUE(fs::is_empty(temporary));
  EXPECT_EQ(folders(), Names());
  unsetenv("TMPDIR");
}

TEST_F(JobSequenceTest, CanBeCancelledWhileItSends) {
  sequence.start(endless());
  EXPECT_TRUE(eventually([&] { return sequence.sent() == 1; }));
  sequence.cancel();
  EXPECT_EQ(diaryUntil("cancelled"), "cancelled ");
  EXPECT_EQ(sequence.sent(), 1U);
  EXPECT_EQ(folders(), Names{"a.pdf"}) << "what was sent stays, and nothing else is left";
}

TEST_F(JobSequenceTest, CanBeCancelledWhileThePaperIsTurned) {
  run(twoPasses({pdf("a.pdf", 2), pdf("b.pdf", 2)}), "turn");
  sequence.cancel();
  EXPECT_EQ(diaryUntil("cancelled"), "turn cancelled ");
  sequence.printBacks(BackOrder::same);
  EXPECT_EQ(run(order({pdf("c.pdf", 1)}), "finished"), "finished ");
  EXPECT_EQ(folders(), (Names{"a.pdf", "c.pdf"}));
}

TEST_F(JobSequenceTest, EndsAtADocumentThatFails) {
  const auto wanted = order({pdf("a.pdf", 1), pdf("b.pdf", 1), pdf("c.pdf", 1)});
  fs::remove(place.path() / "b.pdf");
  EXPECT_EQ(run(wanted, "failed"), "failed ");
  EXPECT_NE(reason.find("b.pdf"), std::string::npos) << reason;
  EXPECT_EQ(sequence.sent(), 1U);
  EXPECT_EQ(folders(), Names{"a.pdf"});
}

// All are made ready first.
TEST_F(JobSequenceTest, SendsNothingWhereOneCannotBeMadeReady) {
  const OptionList options{{"number-up", "2"}, {"page-ranges", "3-4"}};
  EXPECT_EQ(run(order({pdf("a.pdf", 4), place.write("b.pdf", "%PDF-1.4\n")}, options), "failed"),
            "failed ");
  EXPECT_EQ(run(order({pdf("a.pdf", 4), pdf("b.pdf", 2)}, options), "nothing"), "nothing ");
  EXPECT_NE(reason.find("b.pdf"), std::string::npos) << reason;
  EXPECT_EQ(sequence.sent(), 0U);
  EXPECT_EQ(folders(), Names());
}

TEST_F(JobSequenceTest, SaysThatTheFolderCannotTakeTheJob) {
  output = place.write("a file", "in the way");
  EXPECT_EQ(run(order({pdf("a.pdf", 1)}), "refused"), "refused ");
  EXPECT_EQ(sequence.sent(), 0U);
}

TEST_F(JobSequenceTest, EndsWithItsOwner) {
  const JobSequence::Order wanted = endless();
  {
    JobSequence dropped;
    dropped.start(wanted);
    EXPECT_TRUE(eventually([&] { return dropped.sent() == 1; }));
  }
  EXPECT_TRUE(eventually([&] { return folders() == Names{"a.pdf"}; }));
}

}  // namespace
}  // namespace tavrin

#include "host/preview/SheetsSaver.h"

#include <sys/stat.h>

#include "tests/fakes/FakePDF.h"
#include "tests/fixtures/CurrentFolder.h"
#include "tests/fixtures/EventLoopTest.h"
#include "tests/fixtures/PDFTexts.h"
#include "tests/fixtures/SeenDocuments.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

using Existing = SheetsSaver::Existing;
using Pages = std::vector<std::string>;

// Sheets of PDFs with numbered pages; what the saver says is kept in one text.
class SheetsSaverTest : public EventLoopTest {
 protected:
  SheetsSaverTest() {
    fs::create_directory(file.parent_path());
    QObject::connect(&saver, &SheetsSaver::saved, [this](const fs::path& where) {
      diary += "saved ";
      EXPECT_EQ(where, file);
    });
    QObject::connect(&saver, &SheetsSaver::cancelled, [this] { diary += "cancelled "; });
    const auto keep = [this](const QString& why) { reason = why.toStdString(); };
    QObject::connect(&saver, &SheetsSaver::failed, [=, this](const QString& why) {
      diary += "failed ";
      keep(why);
    });
    QObject::connect(&saver, &SheetsSaver::nothingLeft, [=, this](const QString& why) {
      diary += "nothing ";
      keep(why);
    });
  }
  // Documents with so many pages each.
  Preparation sheetsOf(const std::vector<int>& pages, const OptionList& options = {}) {
    std::vector<fs::path> documents;
    for (const int count : pages) {
      const std::string document = std::to_string(documents.size()) + ".pdf";
      documents.push_back(place.write(document, numberedPDF(count)));
    }
    seen.emplace(documents);
    return test::preparationFor(seen->facts(), fs::path(SAMPLE_PRINTERS) / "tavrin-r420.ppd",
                                options);
  }
  void start(const Preparation& preparation, Existing existing = Existing::stays) {
    diary.clear();
    saver.save(preparation, file, existing);
  }
  const std::string& end() {
    EXPECT_TRUE(eventually([this] { return !diary.empty(); }));
    return diary;
  }
  const std::string& save(const Preparation& preparation, Existing existing = Existing::stays) {
    start(preparation, existing);
    return end();
  }
  // All that is in the folder of the file, also what is hidden.
  std::vector<std::string> names() const {
    std::vector<std::string> all;
    for (const auto& entry : fs::directory_iterator(place.path() / "saved"))
      all.push_back(entry.path().filename().string());
    return all;
  }

  using Names = std::vector<std::string>;

  test::TemporaryFolder place;
  fs::path file = place.path() / "saved" / "sheets.pdf";
  std::optional<test::SeenDocuments> seen;
  SheetsSaver saver;
  std::string diary;
  std::string reason;
};

TEST_F(SheetsSaverTest, WritesTheSheets) {
  EXPECT_EQ(save(sheetsOf({8}, {{"number-up", "2"}, {"page-ranges", "2-5"}})), "saved ");
  EXPECT_EQ(test::textsOf(file), (Pages{"F2 F3", "F4 F5"}));
  EXPECT_EQ(names(), Names{"sheets.pdf"});
}

TEST_F(SheetsSaverTest, WritesAFileLikeAnyOther) {
  const mode_t before = umask(0027);
  save(sheetsOf({1}));
  umask(before);
  EXPECT_EQ(fs::status(file).permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST_F(SheetsSaverTest, WritesTheSheetsOfAllDocumentsIntoOneFile) {
  EXPECT_EQ(save(sheetsOf({2, 1, 3}, {{"outputorder", "reverse"}})), "saved ");
  EXPECT_EQ(test::textsOf(file), (Pages{"F2", "F1", "F1", "F3", "F2", "F1"}));
  EXPECT_EQ(names(), Names{"sheets.pdf"});
}

TEST_F(SheetsSaverTest, TakesANameWithoutAFolder) {
  const test::CurrentFolder here(file.parent_path());
  file = "sheets.pdf";
  EXPECT_EQ(save(sheetsOf({2})), "saved ");
  EXPECT_EQ(test::textsOf(file), (Pages{"F1", "F2"}));
}

TEST_F(SheetsSaverTest, LeavesAFileThatIsThereAsItIs) {
  place.write("saved/sheets.pdf", "somebody's");
  for (const std::vector<int>& documents : {std::vector{1}, std::vector{1, 1}}) {
    EXPECT_EQ(save(sheetsOf(documents)), "failed ");
    EXPECT_EQ(reason, "There is a file \"" + file.string() +
                          "\" already, which stays as it is. Choose another name.");
    EXPECT_EQ(test::textOf(file), "somebody's");
    EXPECT_EQ(names(), Names{"sheets.pdf"});
  }
}

TEST_F(SheetsSaverTest, ReplacesAFileWhereThatIsAgreed) {
  place.write("saved/sheets.pdf", "somebody's");
  EXPECT_EQ(save(sheetsOf({2}), Existing::isReplaced), "saved ");
  EXPECT_EQ(test::textsOf(file), (Pages{"F1", "F2"}));
  EXPECT_EQ(names(), Names{"sheets.pdf"});
}

// A reader that has the old file open goes on reading it.
TEST_F(SheetsSaverTest, ReplacesTheDocumentItself) {
  const Preparation itself = sheetsOf({3}, {{"page-ranges", "2-3"}});
  file = itself.documents.front().document;
  EXPECT_EQ(save(itself, Existing::isReplaced), "saved ");
  EXPECT_EQ(test::textsOf(file), (Pages{"F2", "F3"}));
}

TEST_F(SheetsSaverTest, WritesThroughNoLink) {
  const fs::path other = place.write("saved/other.pdf", "somebody's");
  for (const fs::path& target : {other, place.path() / "saved" / "nowhere.pdf"}) {
    fs::create_symlink(target, file);
    EXPECT_EQ(save(sheetsOf({1})), "failed ");
    EXPECT_EQ(fs::read_symlink(file), target);
    EXPECT_EQ(save(sheetsOf({1}), Existing::isReplaced), "saved ");
    EXPECT_FALSE(fs::is_symlink(file));
    fs::remove(file);
  }
  EXPECT_EQ(test::textOf(other), "somebody's");
  EXPECT_EQ(names(), Names{"other.pdf"});
}

TEST_F(SheetsSaverTest, SaysWhyAFileCannotBeWritten) {
  const auto about = [this](const char* problem) {
    return "The sheets cannot be saved as \"" + file.string() + "\": " + problem +
           ". Choose another folder.";
  };
  file = place.path() / "nowhere" / "sheets.pdf";
  EXPECT_EQ(save(sheetsOf({1})), "failed ");
  EXPECT_EQ(reason, about("No such file or directory"));
  file = place.write("a file", "in the way") / "sheets.pdf";
  EXPECT_EQ(save(sheetsOf({1}), Existing::isReplaced), "failed ");
  EXPECT_EQ(reason, about("Not a directory"));
  file = place.path() / "saved";
  EXPECT_EQ(save(sheetsOf({1}), Existing::isReplaced), "failed ");
  EXPECT_EQ(reason, about("Is a directory"));
  EXPECT_EQ(names(), Names());
}

TEST_F(SheetsSaverTest, SaysThatNothingIsLeft) {
  EXPECT_EQ(save(sheetsOf({8, 2}, {{"page-ranges", "3"}})), "nothing ");
  EXPECT_EQ(reason, "“1.pdf” has 2 pages, none of which is to be printed. Choose other pages.");
  EXPECT_EQ(names(), Names());
}

TEST_F(SheetsSaverTest, SaysWhyThereAreNoSheets) {
  Preparation damaged = sheetsOf({1});
  place.write("0.pdf", "%PDF-1.4\nno more");
  EXPECT_EQ(save(damaged), "failed ");
  EXPECT_NE(reason.find("damaged"), std::string::npos) << reason;
  EXPECT_EQ(save(sheetsOf({1})), "saved ") << "it can try again";
}

TEST_F(SheetsSaverTest, GivesUpWhileItMakesTheSheets) {
  start(sheetsOf({2}));
  saver.cancel();
  EXPECT_EQ(diary, "") << "it answers from the event loop";
  EXPECT_EQ(end(), "cancelled ");
  EXPECT_EQ(names(), Names());
}

TEST_F(SheetsSaverTest, GivesUpWhileItPutsTheSheetsTogether) {
  const fs::path temporary = place.path() / "temporary";
  fs::create_directory(temporary);
  const auto isUniting = [&] {
    return std::ranges::any_of(fs::directory_iterator(temporary), [](const auto& folder) {
      return fs::exists(folder.path() / "united.pdf");
    });
  };
  const Preparation several = sheetsOf({1, 2});
  setenv("TMPDIR", temporary.c_str(), 1);
  start(several);
  EXPECT_TRUE(eventually(isUniting));
  saver.cancel();
  EXPECT_EQ(end(), "cancelled ");
  unsetenv("TMPDIR");
  start(sheetsOf({1}));
  saver.cancel();
  EXPECT_EQ(end(), "cancelled ") << "the next one can be cancelled, too";
  EXPECT_EQ(names(), Names());
}

// It may be too late by then.
TEST_F(SheetsSaverTest, AnswersOnceWhereItGivesUpWhileItWrites) {
  for (const std::vector<int>& documents : {std::vector{2}, std::vector{1, 1}}) {
    start(sheetsOf(documents));
    while (diary.empty() && names().empty()) QCoreApplication::processEvents();
    if (diary.empty()) saver.cancel();
    const bool isSaved = end() == "saved ";
    EXPECT_EQ(diary, isSaved ? "saved " : "cancelled ");
    EXPECT_EQ(names(), isSaved ? Names{"sheets.pdf"} : Names());
    start(sheetsOf({1}), Existing::isReplaced);
    EXPECT_EQ(end(), "saved ") << "the answers of the one before have all come";
    fs::remove(file);
  }
}

}  // namespace
}  // namespace tavrin

#include "host/documents/AddedDocuments.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "host/task/PrintTask.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class AddedDocumentsTest : public testing::Test {
 protected:
  static QUrl urlOf(const fs::path& path) {
    return QUrl::fromLocalFile(QString::fromStdString(path.string()));
  }
  std::string refusalOf(const QList<QUrl>& urls) const {
    return sortedDocuments(urls).refusal.toStdString();
  }
  JobRequest request() const {
    JobRequest job;
    job.document = place.write("card.pdf", "%PDF-1.4 a card");
    return job;
  }

  test::TemporaryFolder place;
};

TEST_F(AddedDocumentsTest, AreFilesOnThisComputer) {
  const fs::path letter = place.write("letter 1.txt", "Hello.");
  const AddedDocuments added = sortedDocuments({urlOf(letter)});
  EXPECT_EQ(added.documents, std::vector<fs::path>{letter});
  EXPECT_EQ(added.refusal, "");
}

TEST_F(AddedDocumentsTest, TheOthersAreNamedWithTheWayOut) {
  fs::create_directory(place.path() / "Photos");
  ASSERT_EQ(mkfifo((place.path() / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(refusalOf({urlOf(place.path() / "Photos")}),
            "Not added: “Photos” is a folder (add the files in it).");
  EXPECT_EQ(refusalOf({QUrl("https://example.org/a.jpg")}),
            "Not added: “https://example.org/a.jpg” is not on this computer (save it here first).");
  EXPECT_EQ(refusalOf({urlOf(place.path() / "pipe"), urlOf(place.path() / "gone.pdf")}),
            "Not added: “pipe” is no file; “gone.pdf” is no longer there.");
}

TEST_F(AddedDocumentsTest, TheSentenceHasAnEndHoweverManyThereAre) {
  QList<QUrl> urls;
  for (int i = 0; i < 50; ++i) urls << urlOf(place.path() / std::to_string(i));
  EXPECT_EQ(refusalOf(urls),
            "Not added: “0” is no longer there; “1” is no longer there; “2” is no longer there; 47 "
            "others cannot be printed either.");
}

TEST_F(AddedDocumentsTest, ThePersonIsToldWhatWasAddedAndWhatWasNot) {
  PrintTask task(request());
  addDocuments(task, {urlOf(place.write("a.txt", "a"))});
  EXPECT_EQ(task.notice().text, "“a.txt” was added.");
  EXPECT_FALSE(task.notice().isWarning);
  addDocuments(task, {urlOf(place.write("b.txt", "b")), urlOf(place.write("c.txt", "c")),
                      urlOf(place.path())});
  EXPECT_TRUE(task.notice().text.starts_with("2 documents were added. Not added: "))
      << task.notice().text;
  EXPECT_TRUE(task.notice().isWarning);
  EXPECT_EQ(task.documents().all().size(), 4u);
}

TEST_F(AddedDocumentsTest, GoByTheirNamesOrTheirNumber) {
  PrintTask task(request());
  EXPECT_EQ(documentsInWords(task), "card.pdf");
  task.addDocuments({place.write("a.txt", "a")});
  EXPECT_EQ(documentsInWords(task), "2 documents");
  EXPECT_EQ(documentNames(task), "card.pdf\na.txt");
}

}  // namespace
}  // namespace tavrin

#include "host/ticket/TicketFolder.h"

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class TicketFolderTest : public testing::Test {
 protected:
  std::size_t entries() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(output), fs::directory_iterator()));
  }

  // The folder of the job, which must be written.
  fs::path written(const fs::path& where, const OptionList& with) const {
    const auto folder = writeTicketFolder(where, request, with);
    EXPECT_TRUE(folder) << folder.reason();
    EXPECT_TRUE(*folder) << folder->reason();
    return **folder;
  }
  fs::path written() const { return written(output, options); }

  test::TemporaryFolder place;
  fs::path output = [this] {
    fs::create_directory(place.path() / "out");
    return place.path() / "out";
  }();
  JobRequest request{"", "", 2, "Holiday", "1-3", {}, place.write("card.pdf", "%PDF-1.4 card")};
  OptionList options{{"MediaType", "IronOn"}, {"Mirror", "True"}, {"copies", "2"}};
};

TEST_F(TicketFolderTest, HoldsTheDocumentAndItsTicket) {
  const fs::path folder = written();
  EXPECT_EQ(folder, output / "Holiday");
  EXPECT_EQ(test::textOf(folder / "card.pdf"), "%PDF-1.4 card");
  EXPECT_EQ(test::textOf(folder / "ticket.json"), R"({
  "title": "Holiday",
  "document": "card.pdf",
  "format": "application/pdf",
  "copies": 2,
  "ranges": "1-3",
  "options": {
    "MediaType": "IronOn",
    "Mirror": "True",
    "copies": "2"
  },
  "command": "lp -n 2 -t 'Holiday' -o 'MediaType=IronOn' -o 'Mirror=True' -- 'card.pdf'"
}
)");
}

TEST_F(TicketFolderTest, OverwritesNothing) {
  fs::create_directory(output / "Holiday");  // empty, and yet somebody's
  place.write("out/Holiday-2", "a file");
  EXPECT_EQ(written(), output / "Holiday-3");
  EXPECT_EQ(written(), output / "Holiday-4");
  EXPECT_TRUE(fs::is_empty(output / "Holiday"));
  EXPECT_EQ(test::textOf(output / "Holiday-2"), "a file");
}

TEST_F(TicketFolderTest, StaysInTheOutputFolder) {
  request.title = "../../etc/passwd";
  const fs::path folder = written();
  EXPECT_EQ(folder.parent_path(), output);
  request.title = "/";
  EXPECT_EQ(written().parent_path(), output);
}

TEST_F(TicketFolderTest, CutsALongTitleBetweenCharacters) {
  request.title = "x";
  for (int i = 0; i < 100; ++i) request.title += "ü";
  const fs::path folder = written();
  EXPECT_EQ(folder.filename().string(), request.title.substr(0, 99));
}

TEST_F(TicketFolderTest, MakesTheOutputFolder) {
  EXPECT_EQ(written(output / "new" / "jobs", options), output / "new" / "jobs" / "Holiday");
}

TEST_F(TicketFolderTest, TakesADocumentThatIsNamedLikeTheTicket) {
  request.document = place.write("ticket.json", "%PDF-1.4 odd");
  const fs::path folder = written();
  EXPECT_EQ(test::textOf(folder / "document-ticket.json"), "%PDF-1.4 odd");
}

// What the ticket says; it is JSON whatever the names are made of.
nlohmann::json ticketIn(const fs::path& folder) {
  return nlohmann::json::parse(test::textOf(folder / "ticket.json"));
}

TEST_F(TicketFolderTest, NamesTheDocumentAsItIsInTheFolder) {
  request.title = "";
  for (const auto& [name, nameThere] :
       {std::pair("caf\xE9.pdf", "caf\uFFFD.pdf"), std::pair("two\nlines.pdf", "two lines.pdf"),
        std::pair("\x1B[31mred.pdf", " [31mred.pdf")}) {
    request.document = place.write(name, "%PDF-1.4 card");
    const fs::path folder = written(output, {});
    EXPECT_EQ(folder, output / nameThere);
    EXPECT_EQ(test::textOf(folder / nameThere), "%PDF-1.4 card");
    EXPECT_EQ(ticketIn(folder)["title"], nameThere);
    EXPECT_EQ(ticketIn(folder)["document"], nameThere);
    EXPECT_EQ(ticketIn(folder)["command"], "lp -n 2 -- '" + std::string(nameThere) + "'");
  }
}

TEST_F(TicketFolderTest, GivesACommandThatThePrintSystemTakes) {
  request.title = std::string(300, 'x') + "\n\xE9";
  fs::path folder = written(output, {});
  EXPECT_EQ(ticketIn(folder)["command"],
            "lp -n 2 -t '" + std::string(255, 'x') + "' -- 'card.pdf'");
  request.document = place.write("-", "%PDF-1.4 card");
  folder = written(output, {});
  EXPECT_EQ(ticketIn(folder)["document"], "document") << "lp takes - for standard input";
}

TEST_F(TicketFolderTest, LeavesNothingBehindWhenCancelled) {
  CancelFlag cancel = false;
  const auto folder =
      writeTicketFolder(output, request, options, cancel, [&](const Progress&) { cancel = true; });
  EXPECT_TRUE(folder.cancelled());
  EXPECT_EQ(entries(), 0u);
}

TEST_F(TicketFolderTest, LeavesNothingBehindWhenTheProgramEndsMeanwhile) {
  EXPECT_EXIT(writeTicketFolder(output, request, options, neverCancelled(),
                                [](const Progress&) { std::exit(0); }),
              testing::ExitedWithCode(0), "");
  EXPECT_EQ(entries(), 0u);
}

TEST_F(TicketFolderTest, LeavesNothingBehindWhenItFails) {
  request.document = "/nowhere/card.pdf";
  EXPECT_FALSE(writeTicketFolder(output, request, options));
  EXPECT_EQ(entries(), 0u);
}

TEST_F(TicketFolderTest, LeavesNothingBehindWhenTheDocumentShrinks) {
  request.document = place.write("card.pdf", std::string(100000, 'x'));
  const auto shrink = [this](const Progress&) { fs::resize_file(request.document, 600); };
  const auto folder = writeTicketFolder(output, request, options, neverCancelled(), shrink);
  ASSERT_FALSE(folder);
  EXPECT_NE(folder.reason().find("\"card.pdf\" changed while it was read"), std::string::npos)
      << folder.reason();
  EXPECT_EQ(entries(), 0u);
}

TEST_F(TicketFolderTest, NamesAnOutputFolderThatCannotBe) {
  const auto file = place.write("out/file", "in the way");
  const auto folder = writeTicketFolder(file, request, options);
  ASSERT_TRUE(folder) << "the document is well: " << folder.reason();
  ASSERT_FALSE(*folder);
  EXPECT_EQ(folder->reason(), "The job cannot be written to the folder \"" + file.string() +
                                  "\": Not a directory. Choose another folder.");
}

TEST_F(TicketFolderTest, NamesAnOutputFolderThatBecomesFull) {
  request.document = place.write("card.pdf", std::string(100000, 'x'));
  const auto writeWithLittleRoom = [this] {
    constexpr rlimit kLittle{50000, 50000};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &kLittle);
    const auto folder = writeTicketFolder(output, request, options);
    std::_Exit(folder && folder->reason().find("File too large") != std::string::npos ? 0 : 1);
  };
  EXPECT_EXIT(writeWithLittleRoom(), testing::ExitedWithCode(0), "");
  EXPECT_EQ(entries(), 0u);
}

TEST_F(TicketFolderTest, TellsHowFarItIs) {
  std::uint64_t done = 0;
  const auto tell = [&](const Progress& progress) {
    done = progress.done;
    EXPECT_EQ(progress.total, 13u);
  };
  ASSERT_TRUE(writeTicketFolder(output, request, options, neverCancelled(), tell));
  EXPECT_EQ(done, 13u);
}

}  // namespace
}  // namespace tavrin

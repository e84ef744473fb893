#include <array>
#include <set>

#include <gtest/gtest.h>

#include "host/preview/SheetsSaver.h"
#include "host/printer/MarkedOptions.h"
#include "host/request/JobOptions.h"
#include "host/server/PrinterPPD.h"
#include "host/task/JobSequence.h"
#include "tests/fakes/FakePDF.h"
#include "tests/fixtures/EventLoopTest.h"
#include "tests/fixtures/SeenDocuments.h"
#include "tests/servers/PrivateCupsd.h"

// The sheets of the preview beside the sheets that the printer's back end gets of the same job.

namespace tavrin {
namespace {

namespace fs = std::filesystem;

constexpr char kQueue[] = "tav";

// The documents of the table: pages with their numbers, a picture, a text of two pages.
constexpr std::array kDocuments{"pages.pdf", "picture.ppm", "letter.txt"};

// A row of the table: options, and how many sheets each document comes to with them.
struct Setting {
  const char* name;
  OptionList options;
  std::array<int, 3> sheets{8, 1, 2};
  // The documents that look as they do without the options.
  std::set<std::string> withoutEffect = {};
};

const std::vector<Setting> kTable{
    {"iron-on", {{"MediaType", "IronOn"}, {"Mirror", "True"}}},
    {"A4", {{"PageSize", "A4"}}},
    {"envelope", {{"PageSize", "Env10"}}, {8, 1, 2}},
    {"range", {{"page-ranges", "2-3,7"}}, {3, 0, 1}},
    {"first page", {{"page-ranges", "1"}}, {1, 1, 1}, {"picture.ppm"}},
    {"even pages", {{"page-set", "even"}}, {4, 0, 1}},
    {"odd pages", {{"page-set", "odd"}}, {4, 1, 1}, {"picture.ppm"}},
    {"portrait", {{"orientation-requested", "3"}}, {8, 1, 2}, {"pages.pdf", "letter.txt"}},
    {"landscape", {{"orientation-requested", "4"}}},
    {"reverse landscape", {{"orientation-requested", "5"}}},
    {"reverse portrait", {{"orientation-requested", "6"}}},
    {"fitted", {{"print-scaling", "fit"}}, {8, 1, 2}, {"picture.ppm"}},
    {"filled", {{"PageSize", "A5"}, {"print-scaling", "fill"}}},
    {"actual size", {{"PageSize", "A5"}, {"print-scaling", "none"}}},
    {"actual size at the top left",
     {{"print-scaling", "none"}, {"position", "top-left"}},
     {8, 1, 2},
     {"pages.pdf"}},
    {"half the size", {{"scaling", "50"}}},
    {"twice the size", {{"scaling", "200"}}},
    {"at the top left", {{"scaling", "50"}, {"position", "top-left"}}},
    {"at the bottom", {{"scaling", "50"}, {"position", "bottom"}}},
    {"two on a sheet", {{"number-up", "2"}}, {4, 1, 1}},
    {"four on a sheet", {{"number-up", "4"}}, {2, 1, 1}},
    {"sixteen on a sheet", {{"number-up", "16"}}, {1, 1, 1}},
    {"four mirrored", {{"number-up", "4"}, {"Mirror", "True"}}, {2, 1, 1}},
    {"sequence and border",
     {{"number-up", "4"}, {"number-up-layout", "btrl"}, {"page-border", "single"}},
     {2, 1, 1}},
    {"two of a range on a sheet", {{"number-up", "2"}, {"page-ranges", "1-2"}}, {1, 1, 1}},
    {"two of the even pages on a sheet", {{"number-up", "2"}, {"page-set", "even"}}, {2, 0, 1}},
    {"landscape, two on a sheet", {{"number-up", "2"}, {"orientation-requested", "4"}}, {4, 1, 1}},
    {"booklet", {{"booklet", "true"}}, {4, 2, 2}},
    {"booklet of a range", {{"booklet", "true"}, {"page-ranges", "1"}}, {2, 2, 2}},
    {"last page first", {{"outputorder", "reverse"}}, {8, 1, 2}, {"picture.ppm"}},
    {"two-sided",
     {{"Duplex", "DuplexNoTumble"}},
     {8, 1, 2},
     {"pages.pdf", "picture.ppm", "letter.txt"}},
};

// For each of the documents, by its place among them.
class AsPrintedTest : public EventLoopTest, public testing::WithParamInterface<std::size_t> {
 protected:
  AsPrintedTest() {
    place.write("pages.pdf", numberedPDF(8));
    place.write("letter.txt", "Dear Ada,\n\nhere is a page.\n\f\nAnd another one.\n");
    place.write("picture.ppm", "P6 3 2 255\n" + std::string("\xff\0\0\0\xff\0\0\0\xff"
                                                            "\0\0\0\xff\xff\xff\x80\x80\x80",
                                                            18));
    cups.addQueue(kQueue, fs::path(SAMPLE_PRINTERS) / "tavrin-r420.ppd");
    auto read = readPrinterPPD(kQueue);
    EXPECT_TRUE(read) << read.reason();
    ppd = SharedPPD(std::move(*read));
  }
  // How many there are in what pictures() gives.
  static int count(const std::string& drawn) {
    int found = 0;
    for (std::size_t at = drawn.find("P6\n"); at != std::string::npos;
         at = drawn.find("P6\n", at + 1))
      ++found;
    return found;
  }
  // A picture of each page.
  std::string pictures(const fs::path& pdf) const {
    const std::string out = (place.path() / "out").string();
    const std::string command = "pdftoppm -r 30 '" + pdf.string() + "' > '" + out + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);  // NOLINT(cert-env33-c)
    return test::textOf(out);
  }
  // What the back end gets; empty where no page is left.
  std::string printed(const Preparation& preparation) {
    JobSequence sequence;
    QString outcome;
    bool isNothing = false;
    QObject::connect(&sequence, &JobSequence::failed, [&](const QString& why) { outcome = why; });
    QObject::connect(&sequence, &JobSequence::nothingLeft, [&] { isNothing = true; });
    QObject::connect(&sequence, &JobSequence::finished,
                     [&](const JobReport& report) { outcome = report.text; });
    JobRequest request;
    request.printer = kQueue;
    sequence.start({preparation, request});
    EXPECT_TRUE(eventually([&] { return isNothing || !outcome.isEmpty(); }));
    if (isNothing) return {};
    const int id = outcome.section('-', 1).section(' ', 0, 0).toInt();
    EXPECT_GT(id, 0) << outcome.toStdString();
    return id ? pictures(place.write("printed.pdf", cups.waitForJob(id).data)) : "";
  }
  // What is saved in place of printing it; empty where no page is left.
  std::string saved(const Preparation& preparation) {
    SheetsSaver saver;
    QString reason;
    bool isSaved = false;
    bool isNothing = false;
    QObject::connect(&saver, &SheetsSaver::saved, [&] { isSaved = true; });
    QObject::connect(&saver, &SheetsSaver::nothingLeft, [&] { isNothing = true; });
    QObject::connect(&saver, &SheetsSaver::failed, [&](const QString& why) { reason = why; });
    saver.save(preparation, place.path() / "saved.pdf", SheetsSaver::Existing::isReplaced);
    EXPECT_TRUE(eventually([&] { return isSaved || isNothing || !reason.isEmpty(); }));
    EXPECT_EQ(reason.toStdString(), "");
    return isSaved ? pictures(place.path() / "saved.pdf") : "";
  }
  // The job as the dialog makes it.
  Preparation preparationOf(const std::string& document, const OptionList& options) {
    markOptions(*ppd, options);
    JobRequest request;
    request.options = options;
    documents.emplace(std::vector{place.path() / document});
    return {documents->facts(), sourceOf(ppd), markedPaper(*ppd), jobOptions(request, ppd.get())};
  }

  std::optional<test::SeenDocuments> documents;
  PrivateCupsd cups;
  SharedPPD ppd;
  test::TemporaryFolder place;
};

TEST_P(AsPrintedTest, EverySheetIsTheSameDotForDot) {
  const std::string document = kDocuments.at(GetParam());
  const std::string plain = printed(preparationOf(document, {}));
  EXPECT_EQ(saved(preparationOf(document, {})) == plain, true);
  for (const Setting& setting : kTable) {
    const Preparation preparation = preparationOf(document, setting.options);
    const std::string sheets = printed(preparation);
    EXPECT_EQ(saved(preparation) == sheets, true) << setting.name;
    EXPECT_EQ(count(sheets), setting.sheets.at(GetParam())) << setting.name;
    EXPECT_EQ(sheets == plain, setting.withoutEffect.contains(document)) << setting.name;
  }
}

INSTANTIATE_TEST_SUITE_P(Documents, AsPrintedTest,
                         testing::Range<std::size_t>(0, kDocuments.size()));

}  // namespace
}  // namespace tavrin

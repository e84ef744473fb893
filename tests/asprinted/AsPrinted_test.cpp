#include <gtest/gtest.h>

#include "host/preview/SheetsMaker.h"
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

struct Case {
  const char* name;
  const char* document;
  OptionList options;
};

const std::vector<Case> kCases{
    {"plain", "pages.pdf", {}},
    {"iron-on", "pages.pdf", {{"MediaType", "IronOn"}, {"Mirror", "True"}}},
    {"two on a sheet", "pages.pdf", {{"number-up", "2"}}},
    {"four on a sheet", "pages.pdf", {{"number-up", "4"}}},
    {"four mirrored", "pages.pdf", {{"number-up", "4"}, {"Mirror", "True"}}},
    {"order and border",
     "pages.pdf",
     {{"number-up", "4"}, {"number-up-layout", "btrl"}, {"page-border", "single"}}},
    {"A4", "pages.pdf", {{"PageSize", "A4"}}},
    {"envelope", "pages.pdf", {{"PageSize", "Env10"}}},
    {"landscape", "pages.pdf", {{"orientation-requested", "4"}}},
    {"booklet", "pages.pdf", {{"booklet", "true"}}},
    {"even pages", "pages.pdf", {{"page-set", "even"}}},
    {"range", "pages.pdf", {{"page-ranges", "2-3,7"}}},
    {"reversed", "pages.pdf", {{"outputorder", "reverse"}}},
    {"actual size", "pages.pdf", {{"print-scaling", "none"}}},
    {"filled", "pages.pdf", {{"PageSize", "A5"}, {"print-scaling", "fill"}}},
    {"two-sided", "pages.pdf", {{"Duplex", "DuplexNoTumble"}}},
    {"black", "pages.pdf", {{"ColorModel", "Black"}}},
    {"picture", "picture.ppm", {}},
    {"picture mirrored", "picture.ppm", {{"Mirror", "True"}, {"PageSize", "A4"}}},
    {"picture at half its size", "picture.ppm", {{"scaling", "50"}}},
    {"text", "letter.txt", {}},
    {"text, two on a sheet", "letter.txt", {{"number-up", "2"}}},
};

class AsPrintedTest : public EventLoopTest {
 protected:
  AsPrintedTest() {
    place.write("pages.pdf", numberedPDF(8));
    place.write("letter.txt", "Dear Ada,\n\nhere is a page.\n\f\nAnd another one.\n");
    place.write("picture.ppm", "P6 3 2 255\n" + std::string("\xff\0\0\0\xff\0\0\0\xff"
                                                            "\0\0\0\xff\xff\xff\x80\x80\x80",
                                                            18));
    cups.addQueue(kQueue, fs::path(SAMPLE_PRINTERS) / "tavrin-r420.ppd");
  }
  // A picture of each page.
  std::string pictures(const fs::path& pdf) const {
    const std::string out = (place.path() / "out").string();
    const std::string command = "pdftoppm -r 30 '" + pdf.string() + "' > '" + out + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);  // NOLINT(cert-env33-c)
    return test::textOf(out);
  }
  std::string printed(const Preparation& preparation) {
    JobSequence sequence;
    QString outcome;
    const auto tell = [&](const QString& text) { outcome = text; };
    QObject::connect(&sequence, &JobSequence::failed, tell);
    QObject::connect(&sequence, &JobSequence::nothingLeft, tell);
    QObject::connect(&sequence, &JobSequence::finished,
                     [&](const JobReport& report) { outcome = report.text; });
    JobRequest request;
    request.printer = kQueue;
    sequence.start({preparation, request});
    EXPECT_TRUE(eventually([&] { return !outcome.isEmpty(); }));
    const int id = outcome.section('-', 1).section(' ', 0, 0).toInt();
    EXPECT_GT(id, 0) << outcome.toStdString();
    return id ? pictures(place.write("printed.pdf", cups.waitForJob(id).data)) : "";
  }
  std::string previewed(const Preparation& preparation) {
    SheetsMaker maker(preparation);
    std::optional<Sheets> sheets;
    QString reason;
    QObject::connect(&maker, &SheetsMaker::made, [&](const Sheets& made) { sheets = made; });
    QObject::connect(&maker, &SheetsMaker::failed, [&](const QString& why) { reason = why; });
    maker.start();
    EXPECT_TRUE(eventually([&] { return sheets || !reason.isEmpty(); }));
    return sheets ? pictures(sheets->documents.front().pdf) : reason.toStdString();
  }
  // The job as the dialog makes it.
  Preparation preparationOf(const Case& one, const SharedPPD& ppd) {
    ppdMarkDefaults(ppd.get());
    markOptions(*ppd, one.options);
    JobRequest request;
    request.options = one.options;
    documents.emplace(std::vector{place.path() / one.document});
    return {documents->facts(), sourceOf(ppd), markedPaper(*ppd), jobOptions(request, ppd.get())};
  }

  std::optional<test::SeenDocuments> documents;
  PrivateCupsd cups;
  test::TemporaryFolder place;
};

TEST_F(AsPrintedTest, EverySheetIsTheSameDotForDot) {
  auto read = readPrinterPPD(kQueue);
  ASSERT_TRUE(read) << read.reason();
  const SharedPPD ppd(std::move(*read));
  for (const Case& one : kCases) {
    const Preparation preparation = preparationOf(one, ppd);
    const std::string expected = printed(preparation);
    EXPECT_GT(expected.size(), 10'000u) << one.name;
    EXPECT_EQ(previewed(preparation) == expected, true) << one.name;
  }
}

}  // namespace
}  // namespace tavrin

#include <QByteArray>
#include <gtest/gtest.h>

#include "host/job/JobSubmitter.h"
#include "host/printer/MarkedOptions.h"
#include "host/request/JobOptions.h"
#include "host/server/PrinterPPD.h"
#include "tests/servers/PrivateCupsd.h"

namespace tavrin {
namespace {

constexpr char kQueue[] = "tav";

// What the sample printer's back end gets of the sample document.
class PrintedPageTest : public testing::Test {
 protected:
  PrivateCupsd::CapturedJob printed(const std::string& mirror) {
    cups.addQueue(kQueue, std::filesystem::path(SAMPLE_PRINTERS) / "tavrin-p520.ppd");
    const auto ppd = readPrinterPPD(kQueue);
    EXPECT_TRUE(ppd) << ppd.reason();
    ppdMarkDefaults(ppd->get());
    EXPECT_TRUE(markChoice(ppd->get(), "Mirror", mirror));
    JobRequest job;
    job.printer = kQueue;
    job.document = SAMPLE_DOCUMENT;
    const auto submission = submitJob(job, jobOptions(job, ppd->get()));
    EXPECT_TRUE(submission) << submission.reason();
    EXPECT_TRUE(submission->missingOptions.empty());
    return cups.waitForJob(submission->jobId);
  }
  // How the first page of a PDF puts its content on the paper: the drawing commands of the stream
  // that the page names.
  static std::string pageContents(const std::string& pdf) {
    const std::size_t name = pdf.find("/Contents ");
    const std::string object = pdf.substr(name + 10, pdf.find(' ', name + 10) - name - 10);
    const std::size_t stream = pdf.find("stream\n", pdf.find("\n" + object + " 0 obj")) + 7;
    const std::string packed = pdf.substr(stream, pdf.find("endstream", stream) - stream);
    QByteArray bytes(4, '\0');  // qUncompress takes a guess of the size in front
    return qUncompress(bytes + QByteArray::fromStdString(packed)).toStdString();
  }
  static int count(const std::string& text, const std::string& what) {
    int found = 0;
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; ++at) ++found;
    return found;
  }

  PrivateCupsd cups;
};

// docs/decisions tells who mirrors the page, and why nobody else does.
TEST_F(PrintedPageTest, AMirroredJobIsMirroredOnceInItsData) {
  const auto job = printed("True");
  EXPECT_EQ(job.named("mirror"), 1);
  EXPECT_TRUE(job.has("Mirror"));
  EXPECT_EQ(count(pageContents(job.data), "-1 0 0 1 595 0 cm"), 1) << pageContents(job.data);
  EXPECT_EQ(count(pageContents(job.data), "-1 "), 1) << pageContents(job.data);
}

TEST_F(PrintedPageTest, AnotherJobIsNotMirrored) {
  const auto job = printed("False");
  EXPECT_TRUE(job.has("noMirror"));
  EXPECT_EQ(count(pageContents(job.data), "-1 0 0"), 0) << pageContents(job.data);
  EXPECT_GE(count(pageContents(job.data), " Do"), 1);
}

}  // namespace
}  // namespace tavrin

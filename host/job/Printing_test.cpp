#include <future>

#include <QByteArray>
#include <gtest/gtest.h>

#include "host/job/JobOptions.h"
#include "host/job/JobSubmitter.h"
#include "host/printer/MarkedOptions.h"
#include "host/printer/PPDLoader.h"
#include "host/server/Destinations.h"
#include "host/server/IppRequest.h"
#include "host/server/PrintServer.h"
#include "tests/fakes/FakePPD.h"
#include "tests/servers/PrivateCupsd.h"

// The way of a job to the back end, through a real print server.

namespace tavrin {
namespace {

namespace fs = std::filesystem;

constexpr char kQueue[] = "tav";

class PrintingTest : public testing::Test {
 protected:
  // A printer that gets documents as they are.
  fs::path plainPPD() const {
    return place.write("plain.ppd",
                       ppdText({paperTypeOption(), mirrorOption(), printQualityOption()},
                               {"*cupsFilter2: \"application/pdf application/pdf 0 -\""}));
  }
  JobRequest request(const std::string& text = "%PDF-1.4 a card") const {
    JobRequest job;
    job.printer = kQueue;
    job.document = place.write("card.pdf", text);
    return job;
  }
  // The job's state as the server has it.
  static int jobState(int jobId) {
    const auto server = PrintServer::connect(neverCancelled(), std::chrono::seconds(5));
    const IppPtr job = ask(server->http(), jobRequest(IPP_OP_GET_JOB_ATTRIBUTES, jobId));
    return job ? integerIn(*job, "job-state") : 0;
  }

  test::TemporaryFolder place;
  PrivateCupsd cups;
};

TEST_F(PrintingTest, AJobArrivesWithExactlyItsOptions) {
  cups.addQueue(kQueue, plainPPD());
  const auto ppd = readPrinterPPD(kQueue);
  ASSERT_TRUE(ppd) << ppd.reason();
  ppdMarkDefaults(ppd->get());
  markChoice(ppd->get(), "MediaType", "IronOn");
  markChoice(ppd->get(), "Mirror", "True");

  JobRequest job = request();
  job.copies = 2;
  job.title = "Ada's card";
  std::vector<std::uint64_t> told;
  const auto submission = submitJob(job, jobOptions(job, ppd->get()), neverCancelled(),
                                    [&](const Progress& p) { told.push_back(p.done); });
  ASSERT_TRUE(submission) << submission.reason();
  EXPECT_FALSE(submission->cancelled);
  EXPECT_EQ(submission->notReadBack, "");
  EXPECT_EQ(submission->missingOptions, std::vector<std::string>{});
  EXPECT_EQ(told, std::vector<std::uint64_t>{15});

  const auto captured = cups.waitForJob(submission->jobId);
  EXPECT_EQ(captured.title, "Ada's card");
  EXPECT_EQ(captured.copies, "2");
  EXPECT_EQ(captured.data, "%PDF-1.4 a card");
  for (const auto& [name, value] : markedOptions(**ppd)) EXPECT_EQ(captured.named(name), 1) << name;
  EXPECT_TRUE(captured.has("MediaType=IronOn"));
  EXPECT_TRUE(captured.has("Mirror"));
}

TEST_F(PrintingTest, AMirrorOptionIsSentOnceHoweverItWasSpelled) {
  cups.addQueue(kQueue, plainPPD());
  const auto ppd = readPrinterPPD(kQueue);
  ASSERT_TRUE(ppd) << ppd.reason();
  ppdMarkDefaults(ppd->get());
  JobRequest job = request();
  job.options = parseOptions("mirror=true");
  EXPECT_TRUE(markOptions(**ppd, job.options).empty());
  markChoice(ppd->get(), "Mirror", "False");
  const auto submission = submitJob(job, jobOptions(job, ppd->get()));
  ASSERT_TRUE(submission) << submission.reason();
  const auto captured = cups.waitForJob(submission->jobId);
  EXPECT_EQ(captured.named("mirror"), 1);
  EXPECT_TRUE(captured.has("noMirror"));
}

TEST_F(PrintingTest, TheOptionsMaySayWhatTheDocumentIs) {
  cups.addQueue(kQueue, plainPPD());
  JobRequest job = request("Dear Ada");  // text, which the queue would lay out
  job.options = {{"document-format", "application/pdf"}};
  auto submission = submitJob(job, job.options);
  ASSERT_TRUE(submission) << submission.reason();
  EXPECT_EQ(submission->missingOptions, std::vector<std::string>{});
  EXPECT_EQ(cups.waitForJob(submission->jobId).data, "Dear Ada");
  job.options = {{"raw", "true"}};
  submission = submitJob(job, job.options);
  ASSERT_TRUE(submission) << submission.reason();
  EXPECT_EQ(submission->missingOptions, std::vector<std::string>{});
  EXPECT_EQ(cups.waitForJob(submission->jobId).data, "Dear Ada");
}

TEST_F(PrintingTest, NamesAnOptionThatDidNotArrive) {
  cups.addQueue(kQueue, plainPPD());
  const auto submission = submitJob(request(), {{"MediaType", "IronOn"}, {"job-state", "9"}});
  ASSERT_TRUE(submission) << submission.reason();
  EXPECT_EQ(submission->missingOptions, std::vector<std::string>{"job-state=9"});
}

TEST_F(PrintingTest, AnUnknownPrinterIsNamed) {
  JobRequest job = request();
  job.printer = "nowhere";
  const auto submission = submitJob(job, {});
  ASSERT_FALSE(submission);
  EXPECT_EQ(submission.reason(),
            "\"card.pdf\" could not be printed on \"nowhere\": The printer or class does not "
            "exist.");
  EXPECT_EQ(readPrinterPPD("nowhere").reason(),
            "The printer \"nowhere\" does not exist or has no PPD.");
  EXPECT_EQ(readPrinterState("nowhere").reason(),
            "The printer \"nowhere\" cannot be asked for its state: The printer or class does not "
            "exist.");
}

TEST_F(PrintingTest, AUserWhoMayNotPrintIsToldSo) {
  cups.addQueue(kQueue, plainPPD());
  cups.run({"lpadmin", "-p", kQueue, "-u", "allow:nobody-else"});
  const auto submission = submitJob(request(), {});
  ASSERT_FALSE(submission);
  EXPECT_NE(submission.reason().find("the print server does not allow it"), std::string::npos);
}

TEST_F(PrintingTest, AnEmptyDocumentMakesNoJob) {
  cups.addQueue(kQueue, plainPPD());
  const auto submission = submitJob(request(""), {});
  ASSERT_FALSE(submission);
  EXPECT_NE(submission.reason().find("is empty."), std::string::npos);
  EXPECT_EQ(jobState(1), 0);
}

TEST_F(PrintingTest, AStoppedQueueKeepsTheJob) {
  cups.addQueue(kQueue, plainPPD());
  cups.stopQueue(kQueue);
  const auto state = readPrinterState(kQueue);
  ASSERT_TRUE(state) << state.reason();
  EXPECT_EQ(state->activity, PrinterState::Activity::stopped);
  EXPECT_EQ(stateText(*state), "Stopped");
  cups.run({"cupsdisable", "-r", "Filter failed", kQueue});
  EXPECT_EQ(stateText(*readPrinterState(kQueue)), "Stopped: Filter failed");
  const auto submission = submitJob(request(), {});
  ASSERT_TRUE(submission) << submission.reason();
  EXPECT_EQ(jobState(submission->jobId), IPP_JSTATE_PENDING);
}

TEST_F(PrintingTest, ACancelledJobIsCancelledOnTheServer) {
  cups.addQueue(kQueue, plainPPD());
  cups.stopQueue(kQueue);
  CancelFlag cancel = false;
  const auto submission = submitJob(request("%PDF-1.4 " + std::string(1 << 20, 'x')), {}, cancel,
                                    [&](const Progress&) { cancel = true; });
  ASSERT_TRUE(submission) << submission.reason();
  EXPECT_TRUE(submission->cancelled);
  EXPECT_EQ(jobState(submission->jobId), IPP_JSTATE_CANCELED);
}

TEST_F(PrintingTest, ListsQueuesInstancesAndStates) {
  cups.addQueue(kQueue, plainPPD());
  cups.addQueue("other", plainPPD());
  cups.run({"lpoptions", "-p", "tav/draft", "-o", "PrintQuality=Draft"});
  cups.run({"lpadmin", "-d", "other"});
  cups.run({"cupsreject", "other"});
  // On a thread of its own, which knows this test's files.
  const auto printers = std::async(std::launch::async, [] { return readPrinters(); }).get();
  ASSERT_TRUE(printers) << printers.reason();
  std::vector<std::string> names;
  for (const Printer& printer : *printers) names.push_back(destinationName(printer));
  ASSERT_EQ(names, (std::vector<std::string>{"other", "tav", "tav/draft"}));
  EXPECT_TRUE(printers->at(0).isDefault);
  EXPECT_FALSE(printers->at(1).isDefault);
  EXPECT_EQ(stateText(printers->at(0).state), "Idle, not accepting jobs");
  EXPECT_EQ(stateText(printers->at(1).state), "Idle");
  EXPECT_EQ(optionValue(printers->at(2).options, "PrintQuality"), "Draft");
}

TEST_F(PrintingTest, NoPrintersAreNoFailure) {
  const auto printers = readPrinters();
  ASSERT_TRUE(printers) << printers.reason();
  EXPECT_TRUE(printers->empty());
}

// What the sample printer's back end gets of the sample document.
class SamplePrintingTest : public PrintingTest {
 protected:
  PrivateCupsd::CapturedJob printed(const std::string& mirror) {
    cups.addQueue(kQueue, fs::path(SAMPLE_PRINTERS) / "tavrin-p520.ppd");
    const auto ppd = readPrinterPPD(kQueue);
    EXPECT_TRUE(ppd) << ppd.reason();
    ppdMarkDefaults(ppd->get());
    EXPECT_TRUE(markChoice(ppd->get(), "Mirror", mirror));
    JobRequest job = request();
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
};

// docs/decisions tell who turns the page around, and why nobody else does.
TEST_F(SamplePrintingTest, AMirroredJobIsMirroredOnceInItsData) {
  const auto job = printed("True");
  EXPECT_EQ(job.named("mirror"), 1);
  EXPECT_TRUE(job.has("Mirror"));
  EXPECT_EQ(count(pageContents(job.data), "-1 0 0 1 595 0 cm"), 1) << pageContents(job.data);
  EXPECT_EQ(count(pageContents(job.data), "-1 "), 1) << pageContents(job.data);
}

TEST_F(SamplePrintingTest, AnotherJobIsNotMirrored) {
  const auto job = printed("False");
  EXPECT_TRUE(job.has("noMirror"));
  EXPECT_EQ(count(pageContents(job.data), "-1 0 0"), 0) << pageContents(job.data);
  EXPECT_GE(count(pageContents(job.data), " Do"), 1);
}

TEST(PrinterStateText, PutsReasonsIntoWords) {
  PrinterState state;
  EXPECT_EQ(stateText(state), "State unknown");
  state.activity = PrinterState::Activity::stopped;
  state.reasons = {"paused", "media-empty-error", "marker-supply-low-warning"};
  EXPECT_EQ(stateText(state), "Stopped: media empty, marker supply low (warning)");
}

}  // namespace
}  // namespace tavrin

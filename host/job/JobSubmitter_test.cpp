#include "host/job/JobSubmitter.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iostream>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>

#include "host/printer/MarkedOptions.h"
#include "host/request/JobOptions.h"
#include "host/server/IppRequest.h"
#include "host/server/PrinterPPD.h"
#include "tests/servers/PrivateCupsd.h"
#include "tests/servers/SilentServerTest.h"

// The way of a job to the back end, through a real print server.

namespace tavrin {
namespace {

constexpr char kQueue[] = "tav";

JobRequest requestFor(const std::filesystem::path& document) {
  JobRequest request;
  request.printer = kQueue;
  request.document = document;
  return request;
}

class JobSubmitterTest : public testing::Test {
 protected:
  JobSubmitterTest() { cups.addPlainQueue(kQueue); }

  JobRequest request(const std::string& text = "%PDF-1.4 a card") const {
    return requestFor(place.write("card.pdf", text));
  }
  // The queue's PPD with its defaults marked.
  static PPDPtr markedPPD() {
    auto ppd = readPrinterPPD(kQueue);
    EXPECT_TRUE(ppd) << ppd.reason();
    ppdMarkDefaults(ppd->get());
    return std::move(*ppd);
  }
  // The job's state as the server has it; 0 where there is no such job.
  static int jobState(int jobId) {
    auto server = PrintServer::connect(neverCancelled(), kUsualPatience);
    const IppPtr job = server->ask(jobRequest(IPP_OP_GET_JOB_ATTRIBUTES, jobId));
    return job ? integerIn(*job, "job-state") : 0;
  }

  test::TemporaryFolder place;
  PrivateCupsd cups;
};

TEST_F(JobSubmitterTest, AJobArrivesWithExactlyItsOptions) {
  const PPDPtr ppd = markedPPD();
  markChoice(ppd.get(), "MediaType", "IronOn");
  markChoice(ppd.get(), "Mirror", "True");

  JobRequest job = request();
  job.copies = 2;
  job.title = "Ada's card";
  std::vector<std::uint64_t> told;
  const auto submission = submitJob(job, jobOptions(job, ppd.get()), neverCancelled(),
                                    [&](const Progress& p) { told.push_back(p.done); });
  ASSERT_TRUE(submission) << submission.reason();
  EXPECT_EQ(submission->notReadBack, "");
  EXPECT_EQ(submission->missingOptions, std::vector<std::string>{});
  EXPECT_EQ(told, std::vector<std::uint64_t>{15});

  const auto captured = cups.waitForJob(submission->jobId);
  EXPECT_EQ(captured.title, "Ada's card");
  EXPECT_EQ(captured.copies, "2");
  EXPECT_EQ(captured.data, "%PDF-1.4 a card");
  for (const auto& [name, value] : markedOptions(*ppd)) EXPECT_EQ(captured.named(name), 1) << name;
  EXPECT_TRUE(captured.has("MediaType=IronOn"));
  EXPECT_TRUE(captured.has("Mirror"));
}

TEST_F(JobSubmitterTest, AMirrorOptionIsSentOnceHoweverItWasSpelled) {
  const PPDPtr ppd = markedPPD();
  JobRequest job = request();
  job.options = optionsFromArgument("mirror=true");
  EXPECT_TRUE(markOptions(*ppd, job.options).empty());
  markChoice(ppd.get(), "Mirror", "False");
  const auto submission = submitJob(job, jobOptions(job, ppd.get()));
  ASSERT_TRUE(submission) << submission.reason();
  const auto captured = cups.waitForJob(submission->jobId);
  EXPECT_EQ(captured.named("mirror"), 1);
  EXPECT_TRUE(captured.has("noMirror"));
}

TEST_F(JobSubmitterTest, TheOptionsMaySayWhatTheDocumentIs) {
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

TEST_F(JobSubmitterTest, NamesAnOptionThatDidNotArrive) {
  const auto submission = submitJob(request(), {{"MediaType", "IronOn"}, {"job-state", "99"}});
  ASSERT_TRUE(submission) << submission.reason();
  EXPECT_EQ(submission->missingOptions, std::vector<std::string>{"job-state=99"});
}

TEST_F(JobSubmitterTest, AUserWhoMayNotPrintIsToldSo) {
  cups.run({"lpadmin", "-p", kQueue, "-u", "allow:nobody-else"});
  const auto submission = submitJob(request(), {});
  ASSERT_FALSE(submission);
  EXPECT_NE(submission.reason().find("the print server does not allow it"), std::string::npos);
}

TEST_F(JobSubmitterTest, AUserWithAnAccountNeedsNoPassword) {
  cups.run({"lpadmin", "-p", kQueue, "-o", "printer-op-policy=accounts"});
  const auto submission = submitJob(request(), {});
  ASSERT_TRUE(submission) << submission.reason();
  EXPECT_EQ(cups.waitForJob(submission->jobId).data, "%PDF-1.4 a card");
}

TEST_F(JobSubmitterTest, TheServerIsNotBlamedForASlowDocument) {
  JobRequest job = requestFor(place.path() / "pipe");
  ASSERT_EQ(mkfifo(job.document.c_str(), 0600), 0);
  constexpr Patience kPatience = std::chrono::seconds(1);
  std::thread writer([&] {
    std::ofstream pipe(job.document);
    pipe << "%PDF-1.4 " << std::string(1000, 'x') << std::flush;
    std::this_thread::sleep_for(kPatience * 2);
    pipe << "the end";
  });
  const auto submission = submitJob(job, {}, neverCancelled(), {}, kPatience);
  writer.join();
  ASSERT_TRUE(submission) << submission.reason();
  EXPECT_TRUE(cups.waitForJob(submission->jobId).data.ends_with("the end"));
}

TEST_F(JobSubmitterTest, AnEmptyDocumentMakesNoJob) {
  const auto submission = submitJob(request(""), {});
  ASSERT_FALSE(submission);
  EXPECT_NE(submission.reason().find("is empty."), std::string::npos);
  EXPECT_EQ(jobState(1), 0);
}

TEST_F(JobSubmitterTest, AnUnknownPrinterIsNamed) {
  JobRequest job = request();
  job.printer = "nowhere";
  const auto submission = submitJob(job, {});
  ASSERT_FALSE(submission);
  EXPECT_EQ(submission.reason(),
            "\"card.pdf\" could not be printed on \"nowhere\": The printer or class does not "
            "exist.");
}

TEST_F(JobSubmitterTest, ADocumentWithoutANameIsStandardInput) {
  const std::filesystem::path file = place.write("a.txt", "one line\n");
  const auto printStandardInput = [&] {
    dup2(open(file.c_str(), O_RDONLY), STDIN_FILENO);
    JobRequest job;
    job.printer = "nowhere";
    std::cerr << submitJob(job, {}).reason();
    std::_Exit(0);
  };
  EXPECT_EXIT(printStandardInput(), testing::ExitedWithCode(0),
              "^Standard input could not be printed on \"nowhere\": The printer");
}

TEST_F(JobSubmitterTest, AStoppedQueueKeepsTheJob) {
  cups.stopQueue(kQueue);
  const auto submission = submitJob(request(), {});
  ASSERT_TRUE(submission) << submission.reason();
  EXPECT_EQ(jobState(submission->jobId), IPP_JSTATE_PENDING);
}

TEST_F(JobSubmitterTest, ACancelledJobIsCancelledOnTheServer) {
  cups.stopQueue(kQueue);
  CancelFlag cancel = false;
  const auto submission = submitJob(request("%PDF-1.4 " + std::string(1 << 20, 'x')), {}, cancel,
                                    [&](const Progress&) { cancel = true; });
  EXPECT_TRUE(submission.cancelled());
  EXPECT_EQ(jobState(1), IPP_JSTATE_CANCELED);
}

TEST_F(JobSubmitterTest, ANameIsMadeFitForThePrintServer) {
  const auto titleOf = [&](const std::string& title, const std::string& document) {
    JobRequest job = requestFor(place.write(document, "%PDF-1.4 a card"));
    job.title = title;
    const auto submission = submitJob(job, {});
    return submission ? cups.waitForJob(submission->jobId).title : submission.reason();
  };
  EXPECT_EQ(titleOf("", "caf\xE9.pdf"), "caf\uFFFD.pdf");
  EXPECT_EQ(titleOf("", "two\nlines.pdf"), "two lines.pdf");
  EXPECT_EQ(titleOf("", "\x1B[31mred.pdf"), " [31mred.pdf");
  EXPECT_EQ(titleOf(std::string(300, 'x'), "card.pdf"), std::string(255, 'x'));
  EXPECT_EQ(titleOf("caf\xE9\ttwo", "card.pdf"), "caf\uFFFD two");
}

TEST_F(JobSubmitterTest, AJobWhoseDocumentShrinksIsTakenBack) {
  cups.stopQueue(kQueue);
  const JobRequest job = request("%PDF-1.4 " + std::string(1 << 20, 'x'));
  const auto shrink = [&](const Progress&) { std::filesystem::resize_file(job.document, 600); };
  const auto submission = submitJob(job, {}, neverCancelled(), shrink);
  ASSERT_FALSE(submission);
  EXPECT_EQ(submission.reason(),
            "The document \"card.pdf\" changed while it was read: it had 1048585 bytes when it was "
            "opened, but 600 were read. Print it again when it is complete.");
  EXPECT_EQ(jobState(1), IPP_JSTATE_CANCELED);
}

class SilentServerJobTest : public SilentServerTest {
 protected:
  const JobRequest request = requestFor(place.write("a.txt", "hello"));
};

TEST_F(SilentServerJobTest, IsNotHeldUp) {
  const auto submission = submitJob(request, {}, neverCancelled(), {}, kLittle);
  ASSERT_FALSE(submission);
  EXPECT_EQ(submission.reason(), "\"a.txt\" could not be printed on \"tav\"" + silence);
}

TEST_F(SilentServerJobTest, IsNotHeldUpOnceCancelled) {
  whileCancelling([&](const CancelFlag& cancel) {
    EXPECT_TRUE(submitJob(request, {}, cancel, {}, kForEver).cancelled());
  });
}

}  // namespace
}  // namespace tavrin

#include <ostream>

#include <gtest/gtest.h>

#include "host/job/JobSubmitter.h"
#include "host/server/Destinations.h"
#include "host/server/PrinterPPD.h"
#include "tests/fixtures/TemporaryFolder.h"
#include "tests/servers/FaultyServer.h"

// What a person sees when a print server misbehaves, and what is left in its queue.

namespace tavrin {
namespace {

constexpr int kNothing = 0;
constexpr int kTheJob = 1;

struct Row {
  const char* name;
  Fault fault;
  ipp_op_t request;  // that the server spoils, of all that the person's wish takes
  const char* seen;  // empty: all is well; "@" stands for the server's address
  int left;          // unfinished jobs in the queue
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

constexpr auto kList = IPP_OP_CUPS_GET_PRINTERS;
constexpr auto kState = IPP_OP_GET_PRINTER_ATTRIBUTES;
constexpr auto kPPD = IPP_OP_CUPS_GET_PPD;
constexpr auto kCreate = IPP_OP_CREATE_JOB;
constexpr auto kSend = IPP_OP_SEND_DOCUMENT;
constexpr auto kReadBack = IPP_OP_GET_JOB_ATTRIBUTES;
constexpr auto kTakeBack = IPP_OP_CANCEL_JOB;

#define NO_LIST "The printers cannot be listed: "
#define NO_STATE "The printer \"photo\" cannot be asked for its state: "
#define NO_PPD "The description of the printer \"photo\" cannot be read: "
#define NO_JOB "\"card.pdf\" could not be printed on \"photo\": "
#define NOT_READ_BACK "The job could not be read back: "
#define SILENT "the print server at @ does not answer. Check that it runs, then try again."
#define NO_ANSWER "the print server at @ gave no proper answer. Check that it runs, then try again."
#define TOO_MUCH \
  "the print server at @ sent more than any answer needs. Check that it is a print server."
#define PASSWORD                                                                          \
  "the print server does not allow it, or wants a password. Ask whoever looks after the " \
  "printers, or print with lp, which can ask for the password."
#define STILL_THERE                                                                          \
  "The job was cancelled on this computer only. The unfinished job photo-7 is still in the " \
  "queue; remove it with: cancel 'photo-7'"

// clang-format off
constexpr Row kRows[] = {
    {"ListFromASilentServer", Fault::silent, kList, NO_LIST SILENT, kNothing},
    {"ListThatDrips", Fault::dripping, kList, NO_LIST SILENT, kNothing},
    {"ListAfterEndlessContinue", Fault::endlessContinue, kList, NO_LIST SILENT, kNothing},
    {"ListWithEndlessHeaders", Fault::endlessHeaders, kList, NO_LIST SILENT, kNothing},
    {"ListOfEmptyChunks", Fault::emptyChunks, kList, NO_LIST NO_ANSWER, kNothing},
    {"ListWithoutEnd", Fault::endlessAnswer, kList, NO_LIST TOO_MUCH, kNothing},
    {"ListOfCollectionsInCollections", Fault::deep, kList, NO_LIST NO_ANSWER, kNothing},
    {"ListFromAClosingServer", Fault::closing, kList, NO_LIST NO_ANSWER, kNothing},
    {"HalfAList", Fault::half, kList, NO_LIST NO_ANSWER, kNothing},
    {"ListThatIsNone", Fault::wrong, kList, NO_LIST NO_ANSWER, kNothing},
    {"HugeList", Fault::huge, kList, NO_LIST TOO_MUCH, kNothing},
    {"ListElsewhere", Fault::redirecting, kList, NO_LIST "the print server says \"Moved Permanently\".", kNothing},
    {"ListForAPassword", Fault::wantsPassword, kList, NO_LIST PASSWORD, kNothing},
    {"ListWithEncryption", Fault::wantsEncryption, kList, NO_LIST "the print server says \"Upgrade Required\".", kNothing},
    {"ListThatIsBadlyPacked", Fault::brokenGzip, kList, NO_LIST NO_ANSWER, kNothing},
    {"ListThatUnpacksWithoutEnd", Fault::gzipBomb, kList, NO_LIST TOO_MUCH, kNothing},

    {"StateFromASilentServer", Fault::silent, kState, NO_STATE SILENT, kNothing},
    {"StateThatDrips", Fault::dripping, kState, NO_STATE SILENT, kNothing},
    {"StateOfCollectionsInCollections", Fault::deep, kState, NO_STATE NO_ANSWER, kNothing},
    {"StateFromAClosingServer", Fault::closing, kState, NO_STATE NO_ANSWER, kNothing},

    {"SettingsFromASilentServer", Fault::silent, kPPD, NO_PPD SILENT, kNothing},
    {"SettingsThatDrip", Fault::dripping, kPPD, NO_PPD SILENT, kNothing},
    {"SettingsAfterEndlessContinue", Fault::endlessContinue, kPPD, NO_PPD SILENT, kNothing},
    {"SettingsWithoutEnd", Fault::endlessAnswer, kPPD, NO_PPD "it is too large.", kNothing},
    {"SettingsFromAClosingServer", Fault::closing, kPPD, NO_PPD NO_ANSWER, kNothing},
    {"HalfTheSettings", Fault::half, kPPD, NO_PPD "it was not sent whole. Try again.", kNothing},
    {"SettingsCutInAChunk", Fault::halfChunk, kPPD, NO_PPD "it was not sent whole. Try again.", kNothing},
    {"SettingsCutBetweenChunks", Fault::noLastChunk, kPPD, NO_PPD "it was not sent whole. Try again.", kNothing},
    {"SettingsThatAreNone", Fault::wrong, kPPD, NO_PPD NO_ANSWER, kNothing},
    {"HugeSettings", Fault::huge, kPPD, NO_PPD "it is too large.", kNothing},
    {"SettingsElsewhere", Fault::redirecting, kPPD, NO_PPD "the print server says \"Moved Permanently\".", kNothing},
    {"SettingsForAPassword", Fault::wantsPassword, kPPD, NO_PPD PASSWORD, kNothing},
    {"SettingsWithEncryption", Fault::wantsEncryption, kPPD, NO_PPD "the print server says \"Upgrade Required\".", kNothing},
    {"SettingsThatAreBadlyPacked", Fault::brokenGzip, kPPD, NO_PPD "it was not sent whole. Try again.", kNothing},
    {"SettingsThatUnpackWithoutEnd", Fault::gzipBomb, kPPD, NO_PPD "it is too large.", kNothing},

    {"JobThatIsNotMade", Fault::silent, kCreate, NO_JOB SILENT, kNothing},
    {"JobThatIsMadeInDrips", Fault::dripping, kCreate, NO_JOB SILENT, kNothing},
    {"JobOnAClosingServer", Fault::closing, kCreate, NO_JOB NO_ANSWER, kNothing},
    {"JobForAPassword", Fault::wantsPassword, kCreate, NO_JOB PASSWORD, kNothing},

    {"DocumentThatIsTakenSlowly", Fault::slow, kSend, "", kNothing},
    {"DocumentThatNobodyTakes", Fault::silent, kSend, NO_JOB SILENT, kNothing},
    {"DocumentAfterEndlessContinue", Fault::endlessContinue, kSend, NO_JOB SILENT, kNothing},
    {"DocumentOnAClosingServer", Fault::closing, kSend, NO_JOB NO_ANSWER, kNothing},
    {"DocumentForAPassword", Fault::wantsPassword, kSend, NO_JOB PASSWORD, kNothing},

    {"ArrivedJobThatNobodySees", Fault::silent, kReadBack, NOT_READ_BACK SILENT, kNothing},
    {"ArrivedJobOnAClosingServer", Fault::closing, kReadBack, NOT_READ_BACK NO_ANSWER, kNothing},

    {"CancelledJobOnASilentServer", Fault::silent, kTakeBack, STILL_THERE, kTheJob},
    {"CancelledJobOnAClosingServer", Fault::closing, kTakeBack, STILL_THERE, kTheJob},
    {"CancelledJobForAPassword", Fault::wantsPassword, kTakeBack, STILL_THERE, kTheJob},
};
// clang-format on

// For a server that says nothing, and for one that is slow; no other may need to wait for the end
// of it.
constexpr Patience kLittle = std::chrono::milliseconds(800);
constexpr Patience kPlenty = std::chrono::minutes(5);

template <class Value>
std::string seen(const Cancellable<Value>& answer) {
  return answer ? "" : answer.cancelled() ? "cancelled" : answer.reason();
}

std::string seen(const Cancellable<Submission>& job) {
  return job ? job->notReadBack : seen<Submission>(job);
}

class ServerFaults : public testing::TestWithParam<Row> {
 protected:
  // What the person sees who wishes for something that takes the request.
  std::string wish() {
    CancelFlag cancel = false;
    const std::string_view expected = GetParam().seen;
    const bool testsPatience = expected.empty() || expected.ends_with(SILENT);
    const Patience patience = testsPatience ? kLittle : kPlenty;
    switch (GetParam().request) {
      case kList:
        return seen(readPrinters(cancel, patience));
      case kState:
        return seen(readPrinterState("photo", cancel, patience));
      case kPPD:
        return seen(readPrinterPPD("photo", cancel, patience));
      case kCreate:
      case kSend:
      case kReadBack:
        return seen(submitJob(job(), {}, cancel, {}, patience));
      default:  // taking it back
        return seen(submitJob(
            job(), {}, cancel, [&](const Progress&) { cancel = true; }, patience));
    }
  }

  JobRequest job() const {
    JobRequest request;
    request.printer = "photo";
    request.document = place.write("card.pdf", "%PDF-1.4 " + std::string(300'000, 'x'));
    return request;
  }

  test::TemporaryFolder place;
  FaultyServer server{GetParam().fault, GetParam().request};
};

TEST_P(ServerFaults, AreSeenAndLeaveNothingBehind) {
  std::string expected = GetParam().seen;
  if (const std::size_t at = expected.find('@'); at != std::string::npos)
    expected.replace(at, 1, server.path());
  EXPECT_EQ(wish(), expected);
  EXPECT_EQ(server.unfinishedJobs().size(), static_cast<std::size_t>(GetParam().left));
}

INSTANTIATE_TEST_SUITE_P(Table, ServerFaults, testing::ValuesIn(kRows),
                         [](const auto& row) { return row.param.name; });

// The server of the table is a good one where it does not misbehave.
TEST(FaultyServer, DoesWellWhatItIsNotToldToSpoil) {
  const test::TemporaryFolder place;
  FaultyServer server(Fault::silent, kTakeBack);
  const auto printers = readPrinters();
  ASSERT_TRUE(printers) << printers.reason();
  ASSERT_EQ(printers->size(), 1u);
  EXPECT_EQ(printers->front().name, "photo");
  EXPECT_TRUE(readPrinterState("photo"));
  JobRequest request;
  request.printer = "photo";
  request.document = place.write("card.pdf", "%PDF-1.4");
  EXPECT_EQ(seen(submitJob(request, {})), "");
  EXPECT_TRUE(server.unfinishedJobs().empty());
}

}  // namespace
}  // namespace tavrin

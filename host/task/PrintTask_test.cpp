#include "host/task/PrintTask.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "host/printer/PPDLoader.h"
#include "tests/fakes/FakePDF.h"
#include "tests/fakes/FakePPD.h"
#include "tests/fakes/FakePanel.h"
#include "tests/fixtures/EventLoopTest.h"
#include "tests/fixtures/TemporaryFolder.h"
#include "tests/servers/FaultyServer.h"
#include "tests/servers/PrivateCupsd.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

using Stage = PrintTask::Stage;
using Stages = std::vector<Stage>;

// A task without a window, with every stage that it went through.
class PrintTaskTest : public EventLoopTest {
 protected:
  static SharedPPD printer() {
    return makePPD({pageSizeOption(), paperTypeOption(), mirrorOption()});
  }
  JobRequest request(const std::string& queue = "") {
    JobRequest job;
    job.printer = queue;
    job.document = place.write("card.pdf", "%PDF-1.4 a card");
    return job;
  }
  // Its document is a pipe that nobody ever fills, so that sending it never ends.
  JobRequest endlessRequest() {
    JobRequest job;
    job.document = place.path() / "pipe";
    EXPECT_EQ(mkfifo(job.document.c_str(), 0600), 0);
    return job;
  }
  void follow(PrintTask& task) {
    QObject::connect(&task, &PrintTask::stageChanged, &task,
                     [&] { stages.push_back(task.stage()); });
  }
  static bool reaches(PrintTask& task, Stage stage) {
    return eventually([&] { return task.stage() == stage; });
  }
  static bool areKnown(PrintTask& task) {
    return eventually([&] { return task.documents().areKnown(); });
  }
  // Its back end takes laid-out PDF as it is.
  void addQueue(PrivateCupsd& cups, const char* queue) {
    cups.addQueue(queue, place.write(std::string(queue) + ".ppd",
                                     ppdText({pageSizeOption(), paperTypeOption(), mirrorOption()},
                                             {"*cupsFilter2: \"application/pdf "
                                              "application/pdf 0 -\""})));
  }
  // A printer that takes papers of any size, and staples where the person picks.
  static std::string customPrinter() {
    return ppdText(
        {pageSizeOption(), {"Staple/Staple", "PickMany", "Left", {"Left", "Right"}}},
        {"*cupsFilter2: \"application/pdf application/pdf 0 -\"", "*VariablePaperSize: True",
         "*MaxMediaWidth: \"1000\"", "*MaxMediaHeight: \"1000\"",
         "*NonUIOrderDependency: 10 AnySetup *CustomPageSize", "*CustomPageSize True: \"\"",
         "*ParamCustomPageSize Width: 1 points 36 1000",
         "*ParamCustomPageSize Height: 2 points 36 1000"});
  }
  static std::size_t placeOf(const PrintTask& task, const std::string& destination) {
    const auto& entries = task.printers().entries();
    const auto found = std::ranges::find(
        entries, destination, [](const Printer& printer) { return destinationName(printer); });
    return static_cast<std::size_t>(found - entries.begin());
  }

  test::TemporaryFolder place;
  Stages stages;
};

TEST_F(PrintTaskTest, WritesTheJobOfAPrinterWithoutAQueue) {
  PrintTask task(request());
  follow(task);
  EXPECT_EQ(task.stage(), Stage::idle);
  task.usePrinterWithoutQueue(printer(), place.path() / "jobs");
  ASSERT_TRUE(task.canPrint());
  task.session()->marks().choose("MediaType", "IronOn");
  task.print();
  ASSERT_TRUE(reaches(task, Stage::done));
  EXPECT_EQ(stages, (Stages{Stage::ready, Stage::printing, Stage::done}));
  EXPECT_EQ(task.outcome(), PrintTask::Outcome::printed);
  EXPECT_NE(task.report().find("jobs"), std::string::npos) << task.report();
}

TEST_F(PrintTaskTest, CanTryAgainAfterAFailure) {
  PrintTask task(request());
  task.usePrinterWithoutQueue(printer(), place.write("a file", "in the way"));
  task.session()->marks().choose("MediaType", "IronOn");
  task.print();
  ASSERT_TRUE(reaches(task, Stage::failed));
  EXPECT_TRUE(task.canPrint());
  EXPECT_TRUE(task.notice().isWarning);
  EXPECT_EQ(task.notice().text, task.report());
  EXPECT_EQ(task.session()->marks().choice("MediaType"), "IronOn");
  fs::remove(place.path() / "a file");
  task.print();
  ASSERT_TRUE(reaches(task, Stage::done));
  EXPECT_EQ(task.outcome(), PrintTask::Outcome::printed);
}

TEST_F(PrintTaskTest, TriesAnotherFolderWhereOneIsRefused) {
  PrintTask task(request());
  task.usePrinterWithoutQueue(printer(), place.write("a file", "in the way"));
  task.print();
  ASSERT_TRUE(reaches(task, Stage::failed));
  EXPECT_EQ(task.notice().wayOut, PrintTask::WayOut::chooseFolder);
  task.setOutput(place.path() / "jobs");
  EXPECT_EQ(task.notice().text,
            "The job will be put into the folder " + (place.path() / "jobs").string() + ".");
  task.print();
  ASSERT_TRUE(reaches(task, Stage::done));
  EXPECT_EQ(task.arrived()->folder.parent_path(), place.path() / "jobs");
}

TEST_F(PrintTaskTest, OffersNoOtherFolderWhereTheDocumentIsGone) {
  JobRequest gone = request();
  gone.document = place.path() / "gone.pdf";
  PrintTask task(gone);
  task.usePrinterWithoutQueue(printer(), place.path());
  task.print();
  ASSERT_TRUE(reaches(task, Stage::failed));
  EXPECT_EQ(task.notice().wayOut, PrintTask::WayOut::none);
}

TEST_F(PrintTaskTest, TakesAJobBack) {
  PrintTask task(endlessRequest());
  follow(task);
  task.usePrinterWithoutQueue(printer(), place.path());
  task.cancel();
  EXPECT_EQ(task.stage(), Stage::ready) << "there is no job yet";
  ASSERT_TRUE(areKnown(task));
  task.print();
  task.cancel();
  EXPECT_TRUE(task.isSending());
  ASSERT_TRUE(reaches(task, Stage::ready));
  EXPECT_EQ(stages, (Stages{Stage::ready, Stage::printing, Stage::takingBack, Stage::ready}));
  EXPECT_EQ(task.outcome(), PrintTask::Outcome::cancelled);
  EXPECT_EQ(task.notice().text, "Printing was cancelled. The settings are as they were.");
}

TEST_F(PrintTaskTest, PrintsAsSoonAsTheDocumentIsKnown) {
  PrintTask task(request());
  task.usePrinterWithoutQueue(printer(), place.path());
  EXPECT_FALSE(task.documents().areKnown());
  task.print();
  EXPECT_EQ(task.stage(), Stage::printing);
  ASSERT_TRUE(reaches(task, Stage::done));
}

TEST_F(PrintTaskTest, NothingIsSentWhenItIsCancelledBefore) {
  PrintTask task(request());
  task.usePrinterWithoutQueue(printer(), place.path());
  task.print();
  task.cancel();
  EXPECT_EQ(task.stage(), Stage::ready);
  ASSERT_TRUE(areKnown(task));
  EXPECT_EQ(task.stage(), Stage::ready);
}

TEST_F(PrintTaskTest, SendsEachDocumentWithTheSameSettings) {
  PrintTask task(request());
  task.addDocuments({place.write("more.pdf", "%PDF-1.4 more"), place.write("last.txt", "Bye.")});
  task.usePrinterWithoutQueue(printer(), place.path() / "jobs");
  task.fields().setCopies(2);
  task.print();
  ASSERT_TRUE(reaches(task, Stage::done));
  for (const char* folder : {"card.pdf", "more.pdf", "last.txt"}) {
    const std::string ticket = test::textOf(place.path() / "jobs" / folder / "ticket.json");
    EXPECT_NE(ticket.find("\"copies\": 2"), std::string::npos) << folder << ticket;
  }
}

std::vector<std::string> namesOf(const PrintTask& task) {
  std::vector<std::string> names;
  for (const DocumentFacts& document : task.documents().all())
    names.push_back(document.document.filename().string());
  return names;
}

TEST_F(PrintTaskTest, TakesADocumentOut) {
  PrintTask task(request());
  task.addDocuments({place.write("more.pdf", numberedPDF(2)), place.write("last.txt", "Bye.")});
  task.usePrinterWithoutQueue(printer(), place.path());
  ASSERT_TRUE(areKnown(task));
  task.removeDocument(2);
  EXPECT_EQ(namesOf(task), (std::vector<std::string>{"card.pdf", "more.pdf"}));
  EXPECT_EQ(task.fields().documentPages(), 0) << "of several documents";
  task.removeDocument(0);
  EXPECT_EQ(task.fields().documentPages(), 2);
  EXPECT_EQ(jobTitle(task.request()), "more.pdf");
  task.removeDocument(0);
  EXPECT_EQ(namesOf(task), std::vector<std::string>{"more.pdf"}) << "one stays";
}

// The first one is being looked at by then.
TEST_F(PrintTaskTest, TakesADocumentOutThatIsBeingLookedAt) {
  PrintTask task(request());
  task.addDocuments({place.write("more.pdf", numberedPDF(2)), place.write("last.txt", "Bye.")});
  task.documents().look();
  task.removeDocument(0);
  task.removeDocument(1);
  EXPECT_EQ(namesOf(task), std::vector<std::string>{"more.pdf"});
  ASSERT_TRUE(areKnown(task));
  EXPECT_EQ(task.documents().all().front().pages, 2);
}

TEST_F(PrintTaskTest, KeepsItsDocumentsWhileTheyAreSent) {
  PrintTask task(request());
  task.addDocuments({place.write("more.pdf", numberedPDF(2))});
  task.usePrinterWithoutQueue(printer(), place.path() / "jobs");
  task.print();
  task.removeDocument(0);
  task.addDocuments({place.write("last.txt", "Bye.")});
  EXPECT_EQ(namesOf(task), (std::vector<std::string>{"card.pdf", "more.pdf"}));
  ASSERT_TRUE(reaches(task, Stage::done));
}

// What was sent stays sent; Print goes on with the others.
TEST_F(PrintTaskTest, SaysWhichDocumentsWereSentBeforeOneFailed) {
  PrintTask task(request());
  const auto gone = place.write("gone.pdf", "%PDF-1.4 soon gone");
  task.addDocuments({gone, place.write("last.txt", "Bye.")});
  task.usePrinterWithoutQueue(printer(), place.path() / "jobs");
  ASSERT_TRUE(areKnown(task));
  std::filesystem::remove(gone);
  task.print();
  ASSERT_TRUE(reaches(task, Stage::failed));
  EXPECT_TRUE(
      task.notice().text.ends_with(" 1 of 3 documents were sent before; Print sends the others."))
      << task.notice().text;
  std::ofstream(gone) << "%PDF-1.4 back again";
  task.print();
  ASSERT_TRUE(reaches(task, Stage::done));
  EXPECT_FALSE(std::filesystem::exists(place.path() / "jobs" / "card.pdf-2"));
  EXPECT_TRUE(std::filesystem::exists(place.path() / "jobs" / "last.txt"));
}

// Both sides of the paper on a printer that prints on one: somebody turns it between two jobs.
class TwoPassTest : public PrintTaskTest {
 protected:
  JobRequest twoSided(const std::string& document) const {
    JobRequest job;
    job.document = place.write("card.pdf", document);
    job.options = {{"sides", "two-sided-long-edge"}};
    return job;
  }
  std::string ticket(const std::string& folder) const {
    return test::textOf(place.path() / "jobs" / folder / "ticket.json");
  }
  static void expectOption(const std::string& ticket, const char* option) {
    EXPECT_NE(ticket.find(option), std::string::npos) << option << ticket;
  }
  void printFronts(PrintTask& task) {
    task.usePrinterWithoutQueue(printer(), place.path() / "jobs");
    task.print();
    ASSERT_TRUE(reaches(task, Stage::turning)) << task.notice().text;
  }
};

TEST_F(TwoPassTest, WaitsForThePaperToBeTurned) {
  PrintTask task(twoSided(numberedPDF(3)));
  follow(task);
  printFronts(task);
  EXPECT_EQ(task.work().kind, PrintTask::Work::Kind::sendingBacks);
  expectOption(ticket("card.pdf"), R"("sides": "one-sided")");
  EXPECT_FALSE(fs::exists(place.path() / "jobs" / "card.pdf-2"));
  task.printBacks();
  ASSERT_TRUE(reaches(task, Stage::done));
  EXPECT_EQ(stages,
            (Stages{Stage::ready, Stage::printing, Stage::turning, Stage::printing, Stage::done}));
  EXPECT_EQ(task.outcome(), PrintTask::Outcome::printed);
  EXPECT_EQ(ticket("card.pdf-2").find("outputorder"), std::string::npos);
}

TEST_F(TwoPassTest, PrintsTheBacksTheOtherWayRound) {
  PrintTask task(twoSided(numberedPDF(3)));
  printFronts(task);
  task.printBacks(JobSequence::BackOrder::reversed);
  ASSERT_TRUE(reaches(task, Stage::done));
  expectOption(ticket("card.pdf-2"), R"("outputorder": "reverse")");
}

TEST_F(TwoPassTest, TheOtherWayRoundIsForwardsWhereTheFrontsCameBackwards) {
  JobRequest job = twoSided(numberedPDF(3));
  job.options.emplace_back("outputorder", "reverse");
  PrintTask task(job);
  printFronts(task);
  task.printBacks(JobSequence::BackOrder::reversed);
  ASSERT_TRUE(reaches(task, Stage::done));
  expectOption(ticket("card.pdf"), R"("outputorder": "reverse")");
  expectOption(ticket("card.pdf-2"), R"("outputorder": "normal")");
}

TEST_F(TwoPassTest, TurnsNoPaperForADocumentWithoutABack) {
  PrintTask task(twoSided(numberedPDF(1)));
  follow(task);
  task.usePrinterWithoutQueue(printer(), place.path() / "jobs");
  task.print();
  ASSERT_TRUE(reaches(task, Stage::done)) << task.notice().text;
  EXPECT_EQ(stages, (Stages{Stage::ready, Stage::printing, Stage::done}));
}

TEST_F(TwoPassTest, TurnsThePaperOfEachDocument) {
  PrintTask task(twoSided(numberedPDF(2)));
  task.addDocuments({place.write("more.pdf", numberedPDF(2))});
  printFronts(task);
  EXPECT_EQ(task.work().document, 1u);
  EXPECT_EQ(task.work().documents, 2u);
  task.printBacks();
  ASSERT_TRUE(reaches(task, Stage::turning));
  EXPECT_EQ(task.work().document, 2u);
  task.printBacks();
  ASSERT_TRUE(reaches(task, Stage::done));
}

TEST_F(TwoPassTest, TellsThatTheFrontsArePrintedWhereTheBacksAreNot) {
  PrintTask task(twoSided(numberedPDF(2)));
  printFronts(task);
  task.cancel();
  ASSERT_TRUE(reaches(task, Stage::ready));
  EXPECT_EQ(task.notice().text,
            "Printing was cancelled. The fronts of “card.pdf” were printed, its backs were not.");
  task.leave();
  EXPECT_EQ(task.outcome(), PrintTask::Outcome::cancelled);
  EXPECT_EQ(task.report(), "The fronts of “card.pdf” were printed, its backs were not.");
}

TEST_F(TwoPassTest, TriesTheBacksAgainWithoutTheFronts) {
  PrintTask task(twoSided(numberedPDF(2)));
  printFronts(task);
  fs::remove_all(place.path() / "jobs");
  place.write("jobs", "in the way");
  task.printBacks();
  ASSERT_TRUE(reaches(task, Stage::turning));
  EXPECT_TRUE(task.notice().isWarning);
  fs::remove(place.path() / "jobs");
  task.printBacks();
  ASSERT_TRUE(reaches(task, Stage::done));
  EXPECT_TRUE(fs::exists(place.path() / "jobs" / "card.pdf")) << "the backs";
  EXPECT_FALSE(fs::exists(place.path() / "jobs" / "card.pdf-2"));
}

TEST_F(PrintTaskTest, WhoLeavesTooEarlyHearsOfTheJob) {
  PrintTask task(endlessRequest());
  task.usePrinterWithoutQueue(printer(), place.path());
  ASSERT_TRUE(areKnown(task));
  task.print();
  task.cancel();
  task.leave();
  EXPECT_EQ(task.report(),
            "The job may have been written all the same. See whether it is in the folder " +
                place.path().string() + ".");
}

TEST_F(PrintTaskTest, WhoLeavesOfTheirOwnAccordHearsNothing) {
  PrintTask task(request());
  task.usePrinterWithoutQueue(printer(), place.path());
  task.say("By the way.");
  task.leave();
  EXPECT_EQ(task.report(), "");
  EXPECT_EQ(task.outcome(), PrintTask::Outcome::cancelled);
}

TEST_F(PrintTaskTest, DoesNotSendPagesThatCannotBe) {
  PrintTask task(request());
  task.usePrinterWithoutQueue(printer(), place.path());
  task.fields().setPages({false, "5-1"});
  task.print();
  EXPECT_EQ(task.stage(), Stage::ready);
  EXPECT_TRUE(task.notice().isWarning);
}

TEST_F(PrintTaskTest, ShowsTheLayoutToThePanels) {
  PrintTask task(request());
  task.usePrinterWithoutQueue(printer(), place.path());
  task.fields().setPagesPerSheet(6);
  PanelDiary diary;
  task.session()->addPanels(FakePlugIn::loaded(diary));
  const auto& panel = static_cast<FakePanel&>(*task.session()->panels().front());
  EXPECT_EQ(panel.host.printSettings()->value(kPMLayoutColumns), "3");
}

TEST_F(PrintTaskTest, PutsTheFieldsIntoTheJobInPlaceOfWhatTheyWereFilledInFrom) {
  JobRequest landscape = request();
  landscape.options = {{"landscape", "true"}, {"number-up", "4"}, {"job-hold-until", "night"}};
  PrintTask task(landscape);
  task.usePrinterWithoutQueue(printer(), place.path());
  EXPECT_EQ(optionValue(task.options(), "orientation-requested"), "4");
  task.fields().setValue("orientation-requested", "3");
  task.fields().setPagesPerSheet(1);
  const OptionList options = task.options();
  EXPECT_EQ(optionValue(options, "orientation-requested"), "3");
  EXPECT_EQ(optionValue(options, "landscape"), std::nullopt);
  EXPECT_EQ(optionValue(options, "number-up"), "1");
  EXPECT_EQ(optionValue(options, "job-hold-until"), "night");
}

TEST_F(PrintTaskTest, TakesNoFieldFromAChoiceOfThePrinters) {
  JobRequest folded = request();
  folded.options = {{"Booklet", "Left"}};
  PrintTask task(folded);
  task.usePrinterWithoutQueue(
      makePPD({pageSizeOption(), {"Booklet/Booklet", "PickOne", "None", {"None", "Left"}}}),
      place.path());
  EXPECT_EQ(task.notice().text, "");
  EXPECT_EQ(optionValue(task.options(), "Booklet"), "Left");
  EXPECT_EQ(task.fields().pagesPerSheet(), 1);
}

TEST_F(PrintTaskTest, LooksForPrintersAndReadsTheOneThatIsNamed) {
  PrivateCupsd cups;
  addQueue(cups, "attic");
  addQueue(cups, "office");
  PrintTask task(request("office"));
  follow(task);
  task.usePrintServer();
  ASSERT_TRUE(reaches(task, Stage::ready));
  EXPECT_EQ(stages, (Stages{Stage::looking, Stage::reading, Stage::ready}));
  EXPECT_EQ(task.printerName(), "office");
  task.print();
  ASSERT_TRUE(reaches(task, Stage::done)) << task.notice().text;
  EXPECT_EQ(task.report(), "Job office-1 was sent.");
  EXPECT_EQ(cups.waitForJob(1).data, "%PDF-1.4 a card");
}

TEST_F(PrintTaskTest, KeepsTheSettingsOfAPrinterThatIsLeft) {
  PrivateCupsd cups;
  addQueue(cups, "attic");
  addQueue(cups, "office");
  cups.run({"lpoptions", "-p", "office/iron", "-o", "MediaType=IronOn"});
  PrintTask task(request("office"));
  const auto paper = [&] { return task.session()->marks().choice("MediaType"); };
  const auto turnTo = [&](const std::string& destination) {
    task.choosePrinter(placeOf(task, destination));
    ASSERT_TRUE(reaches(task, Stage::ready)) << destination;
  };
  task.usePrintServer();
  ASSERT_TRUE(reaches(task, Stage::ready));
  const OptString byDefault = paper();
  task.session()->marks().choose("MediaType", "Transparency");
  turnTo("attic");
  EXPECT_EQ(paper(), byDefault) << "one printer's settings do not leak into another's";
  turnTo("office/iron");
  EXPECT_EQ(paper(), "IronOn");
  turnTo("office");
  EXPECT_EQ(paper(), "Transparency");
}

TEST_F(PrintTaskTest, KeepsACustomPaperAndWhatWasEmptied) {
  PrivateCupsd cups;
  addQueue(cups, "attic");
  cups.addQueue("office", place.write("custom.ppd", customPrinter()));
  JobRequest job = request("office");
  job.options = {{"PageSize", "Custom.10x15cm"}};
  PrintTask task(job);
  task.usePrintServer();
  ASSERT_TRUE(reaches(task, Stage::ready));
  task.session()->marks().setPicked("Staple", "Left", false);
  ASSERT_EQ(task.session()->marks().choice("PageSize"), "Custom");
  task.choosePrinter(placeOf(task, "attic"));
  ASSERT_TRUE(reaches(task, Stage::ready));
  task.choosePrinter(placeOf(task, "office"));
  ASSERT_TRUE(reaches(task, Stage::ready));
  EXPECT_EQ(task.session()->marks().choice("PageSize"), "Custom");
  EXPECT_EQ(task.session()->marks().choice("Staple"), std::nullopt);
}

TEST_F(PrintTaskTest, LeavesSettingsOfTheJobToThePerson) {
  PrivateCupsd cups;
  const std::string ppd = ppdText({mirrorOption(),
                                   {"page-ranges", "PickOne", "2", {"1", "2"}},
                                   {"Number-Up", "PickOne", "4", {"1", "4"}}},
                                  {"*cupsFilter2: \"application/pdf application/pdf 0 -\""});
  cups.addQueue("office", place.write("office.ppd", ppd));
  cups.run({"lpoptions", "-p", "office/plain", "-o", "Mirror=False"});
  JobRequest job = request("office");
  job.options = {{"page-ranges", "3"}};
  PrintTask task(job);
  task.usePrintServer();
  ASSERT_TRUE(reaches(task, Stage::ready));
  EXPECT_EQ(task.notice().text,
            "The printer's description has options named like settings of a job, which are left "
            "alone: page-ranges, Number-Up.");
  task.choosePrinter(placeOf(task, "office/plain"));
  EXPECT_EQ(task.notice().text, "") << "it is said once";
  task.print();
  ASSERT_TRUE(reaches(task, Stage::done)) << task.notice().text;
  const auto captured = cups.waitForJob(1);
  EXPECT_TRUE(captured.has("page-ranges=3"));
  EXPECT_FALSE(captured.has("Number-Up=4"));
}

TEST_F(PrintTaskTest, AsksAgainForSettingsThatCouldNotBeRead) {
  PrivateCupsd cups;
  addQueue(cups, "attic");
  addQueue(cups, "office");
  PrintTask task(request("attic"));
  task.usePrintServer();
  ASSERT_TRUE(reaches(task, Stage::ready));
  cups.run({"lpadmin", "-x", "office"});
  const std::size_t office = placeOf(task, "office");
  task.choosePrinter(office);
  ASSERT_TRUE(reaches(task, Stage::ready)) << "it prints all the same";
  ASSERT_EQ(task.session(), nullptr);
  addQueue(cups, "office");
  task.choosePrinter(office);
  EXPECT_EQ(task.stage(), Stage::reading);
  ASSERT_TRUE(reaches(task, Stage::ready));
  EXPECT_NE(task.session(), nullptr);
}

TEST_F(PrintTaskTest, LooksAgainWithoutLosingThePrinterAndItsSettings) {
  PrivateCupsd cups;
  addQueue(cups, "attic");
  addQueue(cups, "office");
  PrintTask task(request("attic"));
  task.usePrintServer();
  ASSERT_TRUE(reaches(task, Stage::ready));
  task.choosePrinter(placeOf(task, "office"));
  ASSERT_TRUE(reaches(task, Stage::ready));
  task.session()->marks().choose("MediaType", "Transparency");
  task.usePrintServer();
  EXPECT_EQ(task.stage(), Stage::looking);
  ASSERT_TRUE(reaches(task, Stage::ready));
  EXPECT_EQ(task.printerName(), "office");
  EXPECT_EQ(task.session()->marks().choice("MediaType"), "Transparency");
}

TEST_F(PrintTaskTest, MakesPagesSmallerForAFileRatherThanCutThem) {
  const auto scaling = [&](const OptionList& options, bool isForFile) {
    JobRequest wanted = request();
    wanted.options = options;
    PrintTask task(wanted);
    if (isForFile)
      task.usePDF();
    else
      task.usePrinterWithoutQueue(printer(), place.path() / "jobs");
    return optionValue(task.preparation().options, "print-scaling");
  };
  EXPECT_EQ(scaling({}, true), "auto-fit");
  EXPECT_EQ(scaling({{"print-scaling", "auto"}}, true), "auto-fit");
  EXPECT_EQ(scaling({{"print-scaling", "none"}}, true), "none");
  EXPECT_EQ(scaling({{"fit-to-page", "true"}}, true), "fit");
  EXPECT_EQ(scaling({{"scaling", "50"}}, true), std::nullopt);
  EXPECT_EQ(scaling({}, false), std::nullopt);
}

TEST_F(PrintTaskTest, DoesNothingOutOfTurn) {
  PrintTask task(request());
  task.print();
  task.choosePrinter(0);
  EXPECT_EQ(task.stage(), Stage::idle);
  task.usePrinterWithoutQueue(printer(), place.path() / "jobs");
  task.print();
  task.usePrintServer();
  task.choosePrinter(0);
  EXPECT_EQ(task.stage(), Stage::printing);
  ASSERT_TRUE(reaches(task, Stage::done));
  task.print();
  EXPECT_EQ(task.stage(), Stage::done);
}

TEST_F(PrintTaskTest, WhoLeavesWhileItPrintsHearsOfTheJob) {
  FaultyServer server(Fault::silent, IPP_OP_CREATE_JOB);
  PrintTask task(request("photo"));
  task.usePrintServer();
  ASSERT_TRUE(reaches(task, Stage::ready));
  task.print();
  task.leave();
  EXPECT_EQ(task.report(),
            "The job may still be on its way. See whether it is in the queue: lpstat -o");
}

TEST_F(PrintTaskTest, AsksForAnotherPrinterWhereTheNamedOneIsUnknown) {
  PrivateCupsd cups;
  addQueue(cups, "attic");
  PrintTask task(request("cellar"));
  task.usePrintServer();
  ASSERT_TRUE(reaches(task, Stage::choosing));
  EXPECT_EQ(task.notice().text, "There is no printer “cellar”. Choose another one.");
  EXPECT_FALSE(task.canPrint());
  task.choosePrinter(0);
  EXPECT_TRUE(reaches(task, Stage::ready));
}

TEST_F(PrintTaskTest, CanLookAgainWhereNoPrinterWasFound) {
  FaultyServer server(Fault::silent);
  server.stop();
  PrintTask task(request());
  task.usePrintServer();
  EXPECT_EQ(task.stage(), Stage::looking);
  ASSERT_TRUE(reaches(task, Stage::noPrinters));
  EXPECT_EQ(task.notice().wayOut, PrintTask::WayOut::lookAgain);
  EXPECT_NE(task.notice().text.find("“Save as PDF”"), std::string::npos) << "needs no printer";
  task.leave();
  EXPECT_EQ(task.report(), task.notice().text) << "why nothing was printed";
  task.usePrintServer();
  EXPECT_EQ(task.notice().text, "");
  EXPECT_TRUE(reaches(task, Stage::noPrinters));
}

}  // namespace
}  // namespace tavrin

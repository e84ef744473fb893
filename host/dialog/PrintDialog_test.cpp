#include "host/dialog/PrintDialog.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabBar>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/general/PrinterPopUp.h"
#include "host/notes/Note.h"
#include "host/notes/ShownSentence.h"
#include "host/panes/FeaturesPane.h"
#include "host/panes/Mnemonics.h"
#include "host/printer/PPDLoader.h"
#include "host/sheets/PreviewArea.h"
#include "platform/files/FileDescriptor.h"
#include "platform/qt/toolkit/QtToolkit.h"
#include "tests/fakes/FakePDF.h"
#include "tests/servers/FaultyServer.h"
#include "tests/servers/PrivateCupsd.h"

// The dialog as a person and a program meet it, with the real plug-in.

namespace tavrin {
namespace {

namespace fs = std::filesystem;

constexpr int kPatience = 20'000;  // milliseconds, on a machine that has much to do

class PrintDialogTest : public testing::Test {
 protected:
  PrintDialogTest() { Toolkit::install(&toolkit); }
  ~PrintDialogTest() override { Toolkit::install(nullptr); }

  static SharedPPD samplePPD(const char* name = "tavrin-r420.ppd") {
    Result<PPDPtr> ppd = loadPPD(fs::path(SAMPLE_PRINTERS) / name);
    EXPECT_TRUE(ppd) << ppd.reason();
    return std::move(*ppd);
  }
  static JobRequest job() {
    JobRequest request;
    request.document = SAMPLE_DOCUMENT;
    return request;
  }
  static void press(PrintDialog& dialog, const char* button) {
    QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
  }
  static QStringList panesOf(const PrintDialog& dialog) {
    const auto* tabs = dialog.findChild<QTabBar*>("panes");
    QStringList names;
    for (int i = 0; i < tabs->count(); ++i) names << tabs->tabText(i).remove('&');
    return names;
  }
  static void turnTo(PrintDialog& dialog, const char* pane) {
    const auto index = panesOf(dialog).indexOf(pane);
    ASSERT_GE(index, 0) << pane;
    dialog.findChild<QTabBar*>("panes")->setCurrentIndex(static_cast<int>(index));
  }
  static void pick(QComboBox* popUp, const char* choice) {
    ASSERT_NE(popUp, nullptr);
    const int index = popUp->findData(choice);
    ASSERT_GE(index, 0) << choice;
    popUp->setCurrentIndex(index);
    emit popUp->activated(index);
  }
  static void pickPrinter(PrintDialog& dialog, const QString& name) {
    auto* printers = dialog.findChild<PrinterPopUp*>();
    const int row = printers->findText(name);
    ASSERT_GE(row, 0) << name.toStdString();
    printers->setCurrentIndex(row);
    emit printers->activated(row);
  }
  static std::vector<std::string> summaryOf(PrintDialog& dialog) {
    turnTo(dialog, "Summary");
    std::vector<std::string> lines;
    auto* list = dialog.findChild<QTreeWidget*>("summary");
    for (QTreeWidgetItemIterator item(list); *item; ++item)
      lines.push_back(((*item)->text(0) + ": " + (*item)->text(1)).toStdString());
    return lines;
  }
  static bool has(const std::vector<std::string>& lines, const std::string& line) {
    return std::ranges::find(lines, line) != lines.end();
  }

  QtToolkit toolkit;
  test::TemporaryFolder place;
};

// The panel has the mirror on for such paper; the preview must not wait for a click to know it.
TEST_F(PrintDialogTest, BeginsWithWhatThePanelHasSet) {
  JobRequest request = job();
  request.options = {{"MediaType", "IronOn"}};
  PrintTask task(request);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  EXPECT_EQ(optionValue(task.options(), "Mirror"), "True");
}

TEST_F(PrintDialogTest, ShowsThePanelOfThePrinter) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  ASSERT_NE(task.session(), nullptr);
  EXPECT_EQ(task.session()->panels().size(), 1u);
  const QStringList panes = panesOf(dialog);
  EXPECT_EQ(panes, (QStringList{"Layout", "Printer Features", "Print Settings", "Summary"}));
  EXPECT_EQ(panes[dialog.findChild<QTabBar*>("panes")->currentIndex()], "Print Settings");
  dialog.show();
  // A second tray is installed in this printer; the panel sees so when it comes up.
  EXPECT_TRUE(dialog.findChild<QComboBox*>("ibPaperSource")->isVisible());
}

TEST_F(PrintDialogTest, LeavesThePanelsOptionsOutOfTheFeatures) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  const auto claimed = task.session()->claimedKeywords();
  EXPECT_TRUE(claimed.contains("MediaType"));
  turnTo(dialog, "Printer Features");
  auto* features = dialog.findChild<FeaturesPane*>();
  std::set<std::string> shown;
  auto* groups = features->findChild<QComboBox*>("featureGroup");
  for (int i = 0; i < groups->count(); ++i) {
    groups->setCurrentIndex(i);
    for (const QWidget* control : features->findChildren<QWidget*>())
      shown.insert(control->objectName().toStdString());
  }
  EXPECT_TRUE(shown.contains("QuietMode"));
  EXPECT_TRUE(shown.contains("Borderless"));
  for (const std::string& key : claimed) EXPECT_FALSE(shown.contains(key)) << key;
  for (const char* key : {"PageSize", "PageRegion", "Duplex"}) EXPECT_FALSE(shown.contains(key));
}

TEST_F(PrintDialogTest, SumsUpEveryPane) {
  JobRequest request = job();
  request.options = {{"MediaType", "IronOn"}, {"number-up", "2"}, {"page-ranges", "2-3"}};
  request.copies = 3;
  PrintTask task(request);
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  const auto lines = summaryOf(dialog);
  EXPECT_TRUE(has(lines, "Copies: 3"));
  EXPECT_TRUE(has(lines, "Pages: 2-3"));
  EXPECT_TRUE(has(lines, "Pages per Sheet: 2"));
  const std::string ironOn = *task.session()->marks().choiceText("MediaType");
  EXPECT_TRUE(has(lines, "Paper Type: " + ironOn));
  EXPECT_EQ(dialog.findChild<QLabel*>("inWords")->text().toStdString(),
            "3 copies of pages 2 to 3, two on a sheet, mirrored, on US Letter (Iron-On Transfer), "
            "with Tavrin R420 Series, 1.0.");
}

TEST_F(PrintDialogTest, TheSummaryFollowsWhatIsChangedAboveIt) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  dialog.show();
  turnTo(dialog, "Summary");
  dialog.findChild<QSpinBox*>("copies")->setValue(3);
  const QString words = dialog.findChild<QLabel*>("inWords")->text();
  EXPECT_TRUE(words.startsWith("3 copies of all pages, collated, on ")) << words.toStdString();
}

TEST_F(PrintDialogTest, SumsUpBeforeThereIsAPrinter) {
  PrintTask task(job());
  PrintDialog dialog(task);
  summaryOf(dialog);
  EXPECT_EQ(dialog.findChild<QLabel*>("inWords")->text(), "All pages.");
}

TEST_F(PrintDialogTest, SumsUpAPanelInTheOrderOfItsControls) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  auto lines = summaryOf(dialog);
  lines.erase(lines.begin(), std::ranges::find(lines, "Print Settings: ") + 1);
  for (std::string& line : lines) line.resize(line.find(':'));
  lines.resize(7);
  EXPECT_EQ(lines, (std::vector<std::string>{"Print Quality", "Print in Black and White",
                                             "Paper Type", "Paper Source", "Mirror Image",
                                             "Image Sharpening", "Two-Sided Dry Time"}));
}

TEST_F(PrintDialogTest, AllFormsHaveTheirColonsInOneLine) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  dialog.show();
  for (const char* pane : {"Layout", "Printer Features"}) {
    turnTo(dialog, pane);
    QCoreApplication::processEvents();
    std::set<int> edges;
    for (const char* name : {"printer", "PageSize", "number-up", "Duplex", "featureGroup"})
      if (const auto* control = dialog.findChild<QWidget*>(name); control->isVisible())
        edges.insert(control->mapTo(&dialog, QPoint(0, 0)).x());
    EXPECT_EQ(edges.size(), 1u) << pane;
  }
}

TEST_F(PrintDialogTest, ThePanelStandsInTheGridOfTheDialog) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  dialog.show();
  QCoreApplication::processEvents();
  const auto placeOf = [&](const char* name) {
    const auto* control = dialog.findChild<QWidget*>(name);
    return QRect(control->mapTo(&dialog, QPoint()), control->size());
  };
  const QRect printer = placeOf("printer");
  for (const char* name : {"ibPaperType", "ibPrintQuality"}) {
    EXPECT_NEAR(placeOf(name).left(), printer.left(), 1) << name;
    EXPECT_NEAR(placeOf(name).right(), printer.right(), 1) << name;
  }
}

TEST_F(PrintDialogTest, AllRowsHaveOneRhythm) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  dialog.show();
  turnTo(dialog, "Printer Features");
  QCoreApplication::processEvents();
  const int height = dialog.findChild<QWidget*>("printer")->height();
  for (const QLabel* label : dialog.findChildren<QLabel*>()) {
    if (!label->isVisible() || !label->buddy()) continue;
    EXPECT_EQ(label->height(), height) << label->text().toStdString();
  }
}

TEST_F(PrintDialogTest, StaysAsItIsWhateverItShows) {
  PrintTask task(job());
  PrintDialog dialog(task);
  const QSize size = dialog.size();
  dialog.show();
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  const auto* print = dialog.findChild<QPushButton*>("print");
  const auto printStands = [&] {
    QCoreApplication::processEvents();
    return print->mapTo(&dialog, print->rect().center());
  };
  const QPoint stood = printStands();
  dialog.findChild<QToolButton*>("ibDisclosure")->click();
  EXPECT_EQ(printStands(), stood) << "advanced options";
  for (const char* pane : {"Layout", "Printer Features", "Summary", "Print Settings"}) {
    turnTo(dialog, pane);
    EXPECT_EQ(printStands(), stood) << pane;
  }
  task.warn(std::string(500, 'x') + " and that is why");
  task.session()->marks().choose("MediaType", "IronOn");
  task.session()->marks().choose("Duplex", "DuplexNoTumble");
  EXPECT_EQ(printStands(), stood) << "notes";
  EXPECT_EQ(dialog.size(), size);
}

TEST_F(PrintDialogTest, EveryLetterLeadsToOneControl) {
  PrintTask task(job());
  task.addDocuments({SAMPLE_DOCUMENT});
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  QString letters = mnemonicsIn(dialog);
  const auto* tabs = dialog.findChild<QTabBar*>("panes");
  for (int i = 0; i < tabs->count(); ++i) {
    const QString letter = QKeySequence::mnemonic(tabs->tabText(i)).toString().right(1);
    EXPECT_FALSE(letter.isEmpty()) << tabs->tabText(i).toStdString();
    letters += letter;
  }
  const std::set<QChar> different(letters.begin(), letters.end());
  EXPECT_EQ(different.size(), letters.size()) << letters.toStdString();
}

TEST_F(PrintDialogTest, NamesPagesPerSheetThatCannotBe) {
  JobRequest request = job();
  request.options = {{"number-up", "3"}};
  PrintTask task(request);
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  EXPECT_EQ(dialog.findChild<Note*>("note")->text(),
            "A sheet can hold 1, 2, 4, 6, 9 or 16 pages, not “3”.");
}

TEST_F(PrintDialogTest, ShowsAPrinterWithoutItsPlugInAndSaysSo) {
  place.write("lost.ppd", [] {
    std::string text = test::textOf(fs::path(SAMPLE_PRINTERS) / "tavrin-r420.ppd");
    const std::string name = "TavrinPrintSettings.plugin";
    return text.replace(text.find(name), name.size(), "Lost.plugin");
  }());
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(std::move(*loadPPD(place.path() / "lost.ppd")), place.path());
  EXPECT_TRUE(task.session()->panels().empty());
  EXPECT_TRUE(dialog.findChild<Note*>("note")->text().contains("Lost.plugin"));
  EXPECT_TRUE(dialog.findChild<QPushButton*>("print")->isEnabled());
}

TEST_F(PrintDialogTest, WritesTheJobOfAPrinterWithoutAQueueToAFolder) {
  JobRequest request = job();
  request.title = "Card";
  PrintTask task(request);
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  dialog.show();
  task.session()->marks().choose("MediaType", "IronOn");
  turnTo(dialog, "Printer Features");
  task.session()->marks().choose("QuietMode", "True");
  QSignalSpy finished(&dialog, &QDialog::finished);
  press(dialog, "print");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !task.report().empty(); }, kPatience));
  EXPECT_EQ(task.outcome(), PrintTask::Outcome::printed);
  press(dialog, "print");  // it says Done now
  EXPECT_EQ(finished.count(), 1);
  fs::path ticket;
  for (const auto& entry : fs::recursive_directory_iterator(place.path()))
    if (entry.path().filename() == "ticket.json") ticket = entry.path();
  const auto json = nlohmann::json::parse(test::textOf(ticket));
  EXPECT_EQ(json.at("title"), "Card");
  EXPECT_EQ(json.at("options").at("MediaType"), "IronOn");
  EXPECT_EQ(json.at("options").at("QuietMode"), "True");
}

TEST_F(PrintDialogTest, AResultTakesThePlaceOfTheSettings) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  dialog.show();
  QCoreApplication::processEvents();
  const QSize size = dialog.size();
  press(dialog, "print");
  ASSERT_TRUE(QTest::qWaitFor([&] { return task.arrived() != nullptr; }, kPatience));
  QCoreApplication::processEvents();
  EXPECT_EQ(dialog.size(), size);
  EXPECT_FALSE(dialog.findChild<QWidget*>("copies")->isVisible());
  const auto* text = dialog.findChild<QLabel*>("resultText");
  EXPECT_TRUE(text->isVisible());
  EXPECT_EQ(text->text().toStdString(), task.report());
  EXPECT_FALSE(dialog.findChild<Note*>("note")->isVisible()) << "it is said once";
  EXPECT_EQ(dialog.focusWidget()->objectName(), "print");
  EXPECT_EQ(dialog.findChild<QPushButton*>("print")->text(), "&Done");
}

TEST_F(PrintDialogTest, LosesNothingWhenTheJobCannotBeWritten) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.write("a file", "in the way"));
  task.session()->marks().choose("MediaType", "IronOn");
  dialog.show();
  press(dialog, "print");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !task.report().empty(); }, kPatience));
  EXPECT_EQ(task.outcome(), PrintTask::Outcome::failed);
  EXPECT_EQ(task.session()->marks().choice("MediaType"), "IronOn");
  EXPECT_TRUE(dialog.findChild<QPushButton*>("print")->isEnabled());
  EXPECT_EQ(dialog.findChild<Note*>("note")->text(), shownSentence(task.report()));
}

TEST_F(PrintDialogTest, LetsAnotherFolderBeChosenWhereOneIsRefused) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.write("a file", "in the way"));
  dialog.show();
  press(dialog, "print");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !task.report().empty(); }, kPatience));
  auto* note = dialog.findChild<Note*>("note");
  EXPECT_EQ(note->findChild<QPushButton*>()->text(), "Choose &Folder…");
  QTest::mouseClick(note->findChild<QPushButton*>(), Qt::LeftButton);
  auto* chooser = dialog.findChild<QFileDialog*>();
  ASSERT_NE(chooser, nullptr);
  fs::create_directory(place.path() / "jobs");
  chooser->setDirectory(QString::fromStdString(place.path().string()));
  chooser->selectFile(QString::fromStdString((place.path() / "jobs").string()));
  static_cast<QDialog*>(chooser)->accept();
  press(dialog, "print");
  ASSERT_TRUE(QTest::qWaitFor([&] { return task.arrived() != nullptr; }, kPatience));
  EXPECT_EQ(task.arrived()->folder.parent_path(), place.path() / "jobs");
}

// What a screen reader calls a control, by itself or by its label.
bool hasName(QWidget& control) {
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&control);
  return !interface->text(QAccessible::Name).isEmpty() ||
         !interface->relations(QAccessible::Label).isEmpty();
}

// Counts how often something in a window is laid out.
class LayoutCounter : public QObject {
 public:
  LayoutCounter() { qApp->installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::LayoutRequest;
    return false;
  }

  int count = 0;
};

TEST_F(PrintDialogTest, ComesToRest) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  dialog.setPreviewWanted(false);  // it is at work for a while
  dialog.show();
  for (int i = 0; i < 100; ++i) QCoreApplication::processEvents();
  const LayoutCounter counter;
  for (int i = 0; i < 100; ++i) QCoreApplication::processEvents();
  EXPECT_EQ(counter.count, 0);
}

TEST_F(PrintDialogTest, DoesNotPrintWhereNoPageIsLeft) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  dialog.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return task.fields().documentPages() > 0; }, kPatience));
  task.fields().setPages({false, "50"});
  press(dialog, "print");
  EXPECT_TRUE(task.canPrint());
  EXPECT_EQ(dialog.findChild<QLabel*>("pageRangeProblem")->text(),
            "The document has one page; the range “50” holds none of them.");
  EXPECT_EQ(dialog.focusWidget()->objectName(), "pageRange");
  EXPECT_FALSE(dialog.findChild<Note*>("note")->text().contains("one page")) << "it is said once";
}

TEST_F(PrintDialogTest, TheTabKeyGoesFromTopToBottom) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  turnTo(dialog, "Layout");
  dialog.show();
  dialog.findChild<QWidget*>("printer")->setFocus();
  QStringList stops{"printer"};
  while (stops.back() != "print" && stops.size() < 30) {
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    stops << dialog.focusWidget()->objectName();
    EXPECT_TRUE(hasName(*dialog.focusWidget())) << stops.back().toStdString();
  }
  QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(dialog.focusWidget()->objectName(), "printer") << "and round";
  stops.removeAll("");
  EXPECT_EQ(stops, (QStringList{"printer", "copies", "pageRange", "page-set", "outputorder",
                                "PageSize", "panes", "orientation-requested", "print-scaling",
                                "position", "number-up", "booklet", "Duplex", "sheetView", "help",
                                "previewSwitch", "cancel", "print"}));
}

// On a printer that cannot turn the paper, between the two passes.
class TurningDialogTest : public PrintDialogTest {
 protected:
  TurningDialogTest() {
    task.usePrinterWithoutQueue(samplePPD("tavrin-s120.ppd"), place.path() / "jobs");
    dialog.show();
    press(dialog, "print");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return task.stage() == PrintTask::Stage::turning; }, kPatience));
    QCoreApplication::processEvents();
  }
  JobRequest bothSides() const {
    JobRequest request;
    request.document = place.write("card.pdf", numberedPDF(3));
    request.options = {{"sides", "two-sided-long-edge"}};
    return request;
  }
  QWidget* page() { return dialog.findChild<QWidget*>("turnPage"); }

  PrintTask task{bothSides()};
  PrintDialog dialog{task};
};

TEST_F(TurningDialogTest, SaysHowToTurnThePaperInPlaceOfTheSettings) {
  EXPECT_TRUE(page()->isVisible());
  EXPECT_FALSE(dialog.findChild<QWidget*>("copies")->isVisible());
  EXPECT_EQ(dialog.focusWidget()->objectName(), "print");
  EXPECT_EQ(dialog.findChild<QPushButton*>("print")->text(), "&Print Backs");
  EXPECT_EQ(mnemonicsIn(*page()).count('P'), 0) << "that is the button's";
}

TEST_F(TurningDialogTest, ReturnPrintsTheBacks) {
  QTest::keyClick(&dialog, Qt::Key_Return);
  EXPECT_FALSE(page()->isVisible());
  ASSERT_TRUE(QTest::qWaitFor([&] { return task.arrived() != nullptr; }, kPatience));
  EXPECT_TRUE(fs::exists(place.path() / "jobs" / "card.pdf-2"));
}

TEST_F(TurningDialogTest, TheBacksComeInTheOrderThatThePersonWants) {
  dialog.findChild<QCheckBox*>("backsReversed")->click();
  press(dialog, "print");
  ASSERT_TRUE(QTest::qWaitFor([&] { return task.arrived() != nullptr; }, kPatience));
  const auto ticket =
      nlohmann::json::parse(test::textOf(place.path() / "jobs" / "card.pdf-2" / "ticket.json"));
  EXPECT_EQ(ticket.at("options").at("outputorder"), "reverse");
}

TEST_F(TurningDialogTest, EscapeAsksBeforeItLosesTheBacks) {
  QTest::keyClick(&dialog, Qt::Key_Escape);
  auto* question = dialog.findChild<QMessageBox*>("backsQuestion");
  ASSERT_TRUE(question && question->isVisible());
  QTest::keyClick(question, Qt::Key_Escape);
  EXPECT_FALSE(question->isVisible());
  EXPECT_EQ(task.stage(), PrintTask::Stage::turning);
  press(dialog, "print");
  EXPECT_TRUE(QTest::qWaitFor([&] { return task.arrived() != nullptr; }, kPatience));
}

TEST_F(TurningDialogTest, StoppingLeavesItAtTheFronts) {
  QTest::keyClick(&dialog, Qt::Key_Escape);
  dialog.findChild<QPushButton*>("stop")->click();
  ASSERT_TRUE(QTest::qWaitFor([&] { return task.canPrint(); }, kPatience));
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_TRUE(dialog.findChild<QWidget*>("copies")->isVisible());
  EXPECT_TRUE(dialog.findChild<Note*>("note")->text().contains("its backs were not"));
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(task.report(), "The fronts of “card.pdf” were printed, its backs were not.");
}

TEST_F(PrintDialogTest, SaysHowManyDocumentsThereAre) {
  PrintTask task(job());
  PrintDialog dialog(task);
  EXPECT_EQ(dialog.windowTitle(), "Print “sample.pdf”");
  task.addDocuments({place.write("a.txt", "a"), place.write("b.txt", "b")});
  EXPECT_EQ(dialog.windowTitle(), "Print 3 documents");
  task.removeDocument(0);
  task.removeDocument(0);
  EXPECT_EQ(dialog.windowTitle(), "Print “b.txt”");
}

TEST_F(PrintDialogTest, ControlAndOAddDocuments) {
  PrintTask task(job());
  PrintDialog dialog(task);
  dialog.show();
  dialog.activateWindow();  // keys of a window work where it is the active one
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  QTest::keyClick(&dialog, Qt::Key_O, Qt::ControlModifier);
  auto* chooser = dialog.findChild<QFileDialog*>();
  ASSERT_NE(chooser, nullptr);
  EXPECT_EQ(chooser->fileMode(), QFileDialog::ExistingFiles);
}

TEST_F(PrintDialogTest, BeginsWhereReturnPrints) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  dialog.show();
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  EXPECT_EQ(dialog.focusWidget()->objectName(), "copies");
  QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
  EXPECT_EQ(task.stage(), PrintTask::Stage::printing);
  EXPECT_TRUE(QTest::qWaitFor([&] { return task.arrived() != nullptr; }, kPatience));
}

TEST_F(PrintDialogTest, OpensAndClosesWhateverThePrintServerDoes) {
  const FaultyServer server(Fault::silent);
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrintServer();
  dialog.show();
  EXPECT_EQ(dialog.findChild<PrinterPopUp*>()->placeholderText(), "Looking for printers…");
  EXPECT_FALSE(dialog.findChild<QPushButton*>("print")->isEnabled());
  press(dialog, "cancel");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(task.outcome(), PrintTask::Outcome::cancelled);
}

TEST_F(PrintDialogTest, TakesAJobBackWhileItIsOnItsWay) {
  JobRequest request = job();
  request.document = place.path() / "pipe";  // nobody ever fills it, so the job never ends
  ASSERT_EQ(mkfifo(request.document.c_str(), 0600), 0);
  PrintTask task(request);
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  dialog.show();
  press(dialog, "print");
  EXPECT_FALSE(dialog.findChild<QPushButton*>("print")->isEnabled());
  press(dialog, "cancel");
  EXPECT_TRUE(dialog.isVisible());
  auto* note = dialog.findChild<Note*>("note");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !note->text().isEmpty(); }, kPatience));
  EXPECT_EQ(note->text(), "Printing was cancelled. The settings are as they were.");
  EXPECT_TRUE(dialog.findChild<QPushButton*>("print")->isEnabled());
}

TEST_F(PrintDialogTest, ASecondCancelDoesNotWaitForTheFirst) {
  JobRequest request = job();
  request.document = place.path() / "pipe";
  ASSERT_EQ(mkfifo(request.document.c_str(), 0600), 0);
  PrintTask task(request);
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  dialog.show();
  press(dialog, "print");
  press(dialog, "cancel");
  press(dialog, "cancel");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(task.outcome(), PrintTask::Outcome::cancelled);
}

TEST_F(PrintDialogTest, EscapeCancels) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  dialog.show();
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(task.outcome(), PrintTask::Outcome::cancelled);
  EXPECT_TRUE(fs::is_empty(place.path()));
}

TEST_F(PrintDialogTest, ShowsConflictsThatThePrinterDeclares) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  auto* conflict = dialog.findChild<Note*>("conflictNote");
  EXPECT_TRUE(conflict->isHidden());
  task.session()->marks().choose("MediaType", "IronOn");
  task.session()->marks().choose("Duplex", "DuplexNoTumble");
  EXPECT_TRUE(conflict->text().contains("Two-Sided")) << conflict->text().toStdString();
  task.session()->marks().choose("Duplex", "None");
  EXPECT_TRUE(conflict->isHidden());
}

TEST_F(PrintDialogTest, PrintsOnTheChosenQueueAndInstance) {
  PrivateCupsd cups;
  cups.addQueue("plain", fs::path(SAMPLE_PRINTERS) / "tavrin-s120.ppd");
  cups.addQueue("photo", fs::path(SAMPLE_PRINTERS) / "tavrin-r420.ppd");
  cups.run({"lpoptions", "-p", "photo/iron", "-o", "MediaType=IronOn", "-o", "copies=2"});
  JobRequest request = job();
  request.printer = "plain";
  PrintTask task(request);
  PrintDialog dialog(task);
  QSignalSpy sessions(&task, &PrintTask::sessionBegun);
  dialog.show();
  task.usePrintServer();
  ASSERT_TRUE(QTest::qWaitFor([&] { return sessions.count() == 1; }, kPatience));
  pickPrinter(dialog, "photo");
  ASSERT_TRUE(QTest::qWaitFor([&] { return sessions.count() == 2; }, kPatience));
  EXPECT_NE(task.session()->marks().choice("MediaType"), "IronOn");

  auto* copies = dialog.findChild<QSpinBox*>("copies");
  EXPECT_EQ(copies->value(), 1);
  pickPrinter(dialog, "photo (iron)");
  EXPECT_EQ(copies->value(), 2);
  EXPECT_EQ(task.session()->marks().choice("MediaType"), "IronOn");
  EXPECT_TRUE(
      has(summaryOf(dialog), "Paper Type: " + *task.session()->marks().choiceText("MediaType")))
      << "the panel has taken the instance's paper type";

  press(dialog, "print");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !task.report().empty(); }, kPatience));
  ASSERT_EQ(task.outcome(), PrintTask::Outcome::printed) << task.report();
  EXPECT_EQ(task.report(), "Job photo-1 was sent.");
  const auto captured = cups.waitForJob(1);
  EXPECT_TRUE(captured.has("MediaType=IronOn"));
  EXPECT_EQ(captured.copies, "2");
}

TEST_F(PrintDialogTest, TakesAJobBackWhenTheProgramIsToEnd) {
  JobRequest request = job();
  request.document = place.path() / "pipe";  // nobody ever fills it, so the job never ends
  ASSERT_EQ(mkfifo(request.document.c_str(), 0600), 0);
  PrintTask task(request);
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path() / "out");
  dialog.show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return task.documents().areKnown(); }, kPatience));
  press(dialog, "print");
  dialog.end();
  EXPECT_TRUE(dialog.isVisible()) << "until the job is taken back";
  ASSERT_TRUE(QTest::qWaitFor([&] { return !dialog.isVisible(); }, kPatience));
  EXPECT_EQ(task.outcome(), PrintTask::Outcome::cancelled);
  EXPECT_EQ(task.report(), "");
  EXPECT_FALSE(fs::exists(place.path() / "out"));
}

// A dialog in the middle of sending a job to a queue, which is told that the program is to end.
class EndingDialogTest : public PrintDialogTest {
 protected:
  void end(FaultyServer& server) {
    JobRequest request = job();
    request.printer = "photo";
    request.document = place.path() / "pipe";  // only begins, so that the job never ends
    ASSERT_EQ(mkfifo(request.document.c_str(), 0600), 0);
    const FileDescriptor pipe(open(request.document.c_str(), O_RDWR));
    const std::string begun = "%PDF-1.4" + std::string(1000, ' ');
    ASSERT_EQ(write(pipe.get(), begun.data(), begun.size()), begun.size());
    PrintTask task(request);
    PrintDialog dialog(task);
    task.usePrintServer();
    ASSERT_TRUE(QTest::qWaitFor([&] { return task.session() != nullptr; }, kPatience));
    dialog.show();
    press(dialog, "print");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !server.unfinishedJobs().empty(); }, kPatience));
    dialog.end();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !dialog.isVisible(); }, kPatience));
    EXPECT_EQ(task.outcome(), PrintTask::Outcome::cancelled);
    report = task.report();
  }

  std::string report;
};

TEST_F(EndingDialogTest, LeavesNoJobInTheQueue) {
  FaultyServer server(Fault::silent, IPP_OP_PAUSE_PRINTER);  // nobody asks for that
  end(server);
  EXPECT_TRUE(server.unfinishedJobs().empty());
  EXPECT_EQ(report, "");
}

TEST_F(EndingDialogTest, EndsInTimeWhereTheJobCannotBeTakenBack) {
  FaultyServer server(Fault::silent, IPP_OP_CANCEL_JOB);
  end(server);
  EXPECT_EQ(report, "The job may still be on its way. See whether it is in the queue: lpstat -o");
}

TEST_F(PrintDialogTest, PickingThePrinterAgainKeepsWhatWasChosen) {
  PrintTask task(job());
  PrintDialog dialog(task);
  task.usePrinterWithoutQueue(samplePPD(), place.path());
  task.session()->marks().choose("MediaType", "IronOn");
  pickPrinter(dialog, dialog.findChild<PrinterPopUp*>()->currentText());
  EXPECT_EQ(task.session()->marks().choice("MediaType"), "IronOn");
}

TEST_F(PrintDialogTest, LooksAgainForPrinters) {
  FaultyServer server(Fault::silent);
  server.stop();
  PrintTask task(job());
  PrintDialog dialog(task);
  dialog.show();
  task.usePrintServer();
  auto* note = dialog.findChild<Note*>("note");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !note->text().isEmpty(); }, kPatience));
  EXPECT_TRUE(note->text().contains("cannot be reached"));
  QTest::mouseClick(note->findChild<QPushButton*>(), Qt::LeftButton);
  EXPECT_EQ(note->text(), "");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !note->text().isEmpty(); }, kPatience));
  dialog.reject();
  EXPECT_TRUE(task.report().find("cannot be reached") != std::string::npos)
      << "why nothing was printed";
}

TEST_F(PrintDialogTest, AsksForAnotherPrinterWhereTheNamedOneIsUnknown) {
  PrivateCupsd cups;
  cups.addQueue("plain", fs::path(SAMPLE_PRINTERS) / "tavrin-s120.ppd");
  JobRequest request = job();
  request.printer = "cellar";
  PrintTask task(request);
  PrintDialog dialog(task);
  dialog.show();
  task.usePrintServer();
  auto* note = dialog.findChild<Note*>("note");
  ASSERT_TRUE(QTest::qWaitFor([&] { return note->text().contains("cellar"); }, kPatience));
  EXPECT_FALSE(dialog.findChild<QPushButton*>("print")->isEnabled());
  pickPrinter(dialog, "plain");
  ASSERT_TRUE(QTest::qWaitFor([&] { return task.session() != nullptr; }, kPatience));
  EXPECT_TRUE(dialog.findChild<QPushButton*>("print")->isEnabled());
}

}  // namespace
}  // namespace tavrin

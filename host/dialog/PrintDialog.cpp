#include "host/dialog/PrintDialog.h"

#include <algorithm>
#include <chrono>

#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "host/dialog/HelpWindow.h"
#include "host/dialog/JobButtons.h"
#include "host/dialog/PaneSwitcher.h"
#include "host/dialog/SessionPanes.h"
#include "host/dialog/SettingsColumn.h"
#include "host/documents/AddedDocuments.h"
#include "host/documents/DocumentDrops.h"
#include "host/documents/DocumentsRow.h"
#include "host/documents/PDFName.h"
#include "host/fields/LayoutPane.h"
#include "host/general/GeneralArea.h"
#include "host/notes/Note.h"
#include "host/notes/TaskNote.h"
#include "host/pages/ResultPage.h"
#include "host/pages/TaskInWords.h"
#include "host/pages/TurnPage.h"
#include "host/panes/Widgets.h"
#include "host/sheets/PreviewArea.h"
#include "host/sheets/PreviewSwitch.h"
#include "host/sheets/TaskPreview.h"
#include "platform/qt/base/ShownText.h"
#include "platform/qt/toolkit/QtToolkit.h"

namespace tavrin {
namespace {

// The height of the window when it opens, in line heights: enough for most panels.
constexpr int kUsualHeight = 44;
// What a window manager puts around a window, at most.
constexpr QSize kWindowFrame(16, 48);

// How long a program that is to end waits for a job to be taken back.
constexpr std::chrono::milliseconds kLongestEnd(1500);

QString titleFor(const PrintTask& task) {
  if (task.documents().all().size() > 1)
    return PrintDialog::tr("Print %1").arg(documentsInWords(task));
  const JobRequest& request = task.request();
  const bool isNamed = !request.title.empty() || request.document != kStandardInput;
  return isNamed ? PrintDialog::tr("Print “%1”").arg(shownLine(jobTitle(request)))
                 : PrintDialog::tr("Print");
}

}  // namespace

PrintDialog::PrintDialog(PrintTask& theTask, QWidget* parent)
    : QDialog(parent),
      task(theTask),
      row(makeChild<QHBoxLayout>()),
      preview(makeChild<PreviewArea>(this)),
      pages(makeChild<QStackedWidget>(this)),
      column(makeChild<SettingsColumn>(pages)),
      content(column->widget()),
      documents(makeChild<DocumentsRow>(task, content)),
      general(makeChild<GeneralArea>(task, content)),
      switcher(makeChild<PaneSwitcher>(content)),
      conflictNote(makeChild<Note>(this)),
      note(makeChild<TaskNote>(task, this)),
      buttons(makeChild<JobButtons>(task, this)),
      previewSwitch(makeChild<PreviewSwitch>(*preview, *pages, this)),
      taskPreview(std::make_unique<TaskPreview>(task, *preview)),
      layoutPane(makeChild<LayoutPane>(task.fields(), switcher)),
      summaryPane(makeChild<SummaryPane>([this] { return taskInWords(task); },
                                         [this] { return allLines(); }, switcher)) {
  build();
  connectParts();
  connectTask();
  if (task.session()) showSession();
  showStage();
  showTitle();
}

PrintDialog::~PrintDialog() = default;

void PrintDialog::build() {
  auto* inside = makeChild<QVBoxLayout>(content);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->addWidget(documents);
  inside->addWidget(general);
  inside->addSpacing(fontMetrics().height() / 2);
  inside->addWidget(switcher);
  inside->addStretch();
  pages->addWidget(column);
  row->addWidget(preview, 1);
  row->addWidget(pages);
  buttons->addBesideHelp(previewSwitch);
  auto* rows = makeChild<QVBoxLayout>(this);
  rows->addLayout(row, 1);
  rows->addWidget(conflictNote);
  rows->addWidget(note);
  rows->addWidget(buttons);
  switcher->setPanes({layoutPane, summaryPane}, layoutPane->name());
  resize(openingSize());
  note->setObjectName("note");
  conflictNote->setObjectName("conflictNote");
  general->focusCopies();
}

void PrintDialog::connectParts() {
  connect(buttons, &JobButtons::helpWanted, this, &PrintDialog::showHelp);
  connect(buttons, &JobButtons::cancelled, this, &PrintDialog::reject);
  connect(buttons, &JobButtons::closed, this, &PrintDialog::accept);
  connect(buttons, &JobButtons::printWanted, this, &PrintDialog::print);
  connect(previewSwitch, &PreviewSwitch::wantedChanged, this, &PrintDialog::makeRoomForPreview);
  auto* helpKey = makeChild<QShortcut>(QKeySequence(QKeySequence::HelpContents), this);
  connect(helpKey, &QShortcut::activated, this, &PrintDialog::showHelp);
  auto* addKey = makeChild<QShortcut>(QKeySequence(QKeySequence::Open), this);
  connect(addKey, &QShortcut::activated, this, [this] {
    if (task.canTakeDocuments()) askForDocuments(task, this);
  });
  makeChild<DocumentDrops>(task, *this);
}

void PrintDialog::connectTask() {
  connect(&task, &PrintTask::sessionBegun, this, &PrintDialog::showSession);
  connect(&task, &PrintTask::sessionEnding, this, &PrintDialog::hideSession);
  connect(&task, &PrintTask::sessionRestarted, switcher, &PaneSwitcher::showAgain);
  connect(&task, &PrintTask::stageChanged, this, &PrintDialog::showStage);
  connect(&task, &PrintTask::documentsChanged, this, &PrintDialog::showTitle);
  for (const auto signal : {&PrintTask::optionsChanged, &PrintTask::documentsChanged})
    connect(&task, signal, summaryPane, [this] {
      if (summaryPane->isVisible()) summaryPane->willShow();
    });
}

// The same for all printers, panes and notes: from then on, only the person changes it.
QSize PrintDialog::openingSize() const {
  const QMargins margins = layout()->contentsMargins();
  const QSize wanted(row->sizeHint().width() + margins.left() + margins.right(),
                     kUsualHeight * fontMetrics().height());
  return wanted.boundedTo(screen()->availableSize() - kWindowFrame);
}

void PrintDialog::setPreviewWanted(bool wanted) {
  previewSwitch->setWanted(wanted);
  resize(openingSize());
}

// The settings keep their width.
void PrintDialog::makeRoomForPreview(bool wanted) {
  const int more = wanted ? preview->sizeHint().width() : -preview->width();
  const int most = screen()->availableSize().width() - kWindowFrame.width();
  const int gap = wanted ? row->spacing() : -row->spacing();
  if (!isMaximized()) resize(std::min(width() + more + gap, most), height());
  emit previewWantedChanged(wanted);
}

void PrintDialog::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  previewSwitch->setRoom(row->contentsRect().width());
}

void PrintDialog::orderAllTabs() { orderTabs({content, preview, conflictNote, note, buttons}); }

// --- The printer's settings ---

void PrintDialog::showSession() {
  PrinterSession& session = *task.session();
  general->setMarks(&session.marks());
  layoutPane->setMarks(&session.marks());
  sessionPanes = std::make_unique<SessionPanes>(session, switcher);
  connect(sessionPanes.get(), &SessionPanes::laidOutAnew, this, &PrintDialog::orderAllTabs);
  connect(sessionPanes.get(), &SessionPanes::saveFailed, &task, &PrintTask::warn);
  std::vector<Pane*> panes = sessionPanes->offered();
  panes.insert(panes.begin(), layoutPane);
  panes.push_back(summaryPane);
  const Pane* first = sessionPanes->first();
  switcher->setPanes(panes, first ? first->name() : layoutPane->name());
  orderAllTabs();
  connect(&session.marks(), &PPDMarks::refreshed, this, &PrintDialog::showConflicts);
  showConflicts();
}

void PrintDialog::hideSession() {
  switcher->setPanes({layoutPane, summaryPane}, layoutPane->name());
  conflictNote->clear();
  general->setMarks(nullptr);
  layoutPane->setMarks(nullptr);
  sessionPanes.reset();
}

void PrintDialog::showConflicts() {
  QStringList texts;
  for (const std::string& text : task.session()->marks().conflictingOptions())
    texts << shownLine(text);
  conflictNote->say(texts.isEmpty() ? QString()
                                    : tr("The printer cannot do these together as they are set: "
                                         "%1. Changing one of them puts it right.")
                                          .arg(texts.join(", ")),
                    Note::Kind::information);
}

SummaryPane::Sections PrintDialog::allLines() const {
  SummaryPane::Sections sections{{tr("General"), general->summary()},
                                 {layoutPane->name(), layoutPane->summary()}};
  if (!sessionPanes) return sections;
  for (const Pane* pane : sessionPanes->summedUp())
    sections.emplace_back(pane->name(), pane->summary());
  return sections;
}

// --- What is said, and what the person wants ---

void PrintDialog::showTitle() { setWindowTitle(titleFor(task)); }

void PrintDialog::showStage() {
  content->setEnabled(!task.isSending());
  if (task.stage() == PrintTask::Stage::done) return showResult();
  if (task.stage() == PrintTask::Stage::turning) return showTurning();
  pages->setCurrentWidget(column);
}

// Stays, once it has come up, and the settings come back between two documents.
void PrintDialog::showTurning() {
  if (!turnPage) {
    turnPage = makeChild<TurnPage>(task, pages);
    pages->addWidget(turnPage);
  }
  pages->setCurrentWidget(turnPage);
  orderTabs({turnPage, preview, note, buttons});
}

// The settings have done their work; a stack keeps the window as large as it was.
void PrintDialog::showResult() {
  auto* result = makeChild<ResultPage>(task, pages);
  pages->addWidget(result);
  pages->setCurrentWidget(result);
  orderTabs({result, preview, note, buttons});
}

void PrintDialog::showHelp() {
  if (Pane* pane = switcher->current(); pane && !pane->shouldShowHelp()) return;
  if (!help) help = makeChild<HelpWindow>(this);
  help->show();
  help->raise();
  help->activateWindow();
}

void PrintDialog::print() {
  if (task.stage() == PrintTask::Stage::turning) return task.printBacks(turnPage->backOrder());
  if (QtToolkit* toolkit = QtToolkit::installed()) toolkit->settle();
  if (!isVisible()) return;  // it was left meanwhile
  if (!task.fields().pagesProblem().isEmpty()) return general->focusPageRange();
  task.target() == PrintTask::Target::file ? save() : task.print();
}

// The person agrees to lose a file in the window that asks for its name.
void PrintDialog::save() {
  const QString file = askForPDF(task.documents().all().front().document, this);
  if (file.isEmpty() || !task.canPrint()) return;
  const std::filesystem::path path = QFile::encodeName(file).toStdString();
  using Existing = SheetsSaver::Existing;
  task.saveAs(path, QFileInfo::exists(file) ? Existing::isReplaced : Existing::stays);
}

void PrintDialog::reject() {
  if (task.stage() == PrintTask::Stage::done) return accept();
  if (task.stage() == PrintTask::Stage::turning) return askBeforeLosingBacks();
  if (task.stage() == PrintTask::Stage::printing) return task.cancel();
  leave();
}

// Paper that is printed on one side cannot be had again. The window holds up nothing, and goes when
// the dialog goes on by itself.
void PrintDialog::askBeforeLosingBacks() {
  auto* question = makeChild<QMessageBox>(this);
  question->setObjectName("backsQuestion");
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->setIcon(QMessageBox::Warning);
  question->setWindowTitle(tr("Backs Not Printed"));
  question->setText(tr("The backs are not printed yet."));
  question->setInformativeText(
      tr("If you stop now, they cannot be printed later on the paper that has its fronts."));
  question->setDefaultButton(question->addButton(tr("&Keep Waiting"), QMessageBox::RejectRole));
  QPushButton* stop = question->addButton(tr("&Stop"), QMessageBox::DestructiveRole);
  stop->setObjectName("stop");
  connect(stop, &QPushButton::clicked, &task, &PrintTask::cancel);
  connect(&task, &PrintTask::stageChanged, question, &QMessageBox::close);
  question->open();
}

void PrintDialog::leave() {
  task.leave();
  QDialog::reject();
}

void PrintDialog::end() {
  QEvent quit(QEvent::Quit);  // QCoreApplication::quit() does nothing in a dialog's own event loop
  if (!task.isSending())
    return void(QCoreApplication::sendEvent(QCoreApplication::instance(), &quit));
  connect(&task, &PrintTask::stageChanged, this, [this] {
    if (!task.isSending()) leave();
  });
  QTimer::singleShot(kLongestEnd, this, &PrintDialog::leave);
  task.cancel();
}

}  // namespace tavrin

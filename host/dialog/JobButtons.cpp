#include "host/dialog/JobButtons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "host/panes/Widgets.h"

namespace tavrin {
namespace {

constexpr int kSteps = 1000;

QString sendingText(const PrintTask::Work& work) {
  using Kind = PrintTask::Work::Kind;
  const bool isOne = work.documents == 1;
  const QString text = work.kind == Kind::sendingFronts
                           ? (isOne ? JobButtons::tr("Sending the fronts…")
                                    : JobButtons::tr("Sending the fronts of document %1 of %2…"))
                       : work.kind == Kind::sendingBacks
                           ? (isOne ? JobButtons::tr("Sending the backs…")
                                    : JobButtons::tr("Sending the backs of document %1 of %2…"))
                           : (isOne ? JobButtons::tr("Sending the document…")
                                    : JobButtons::tr("Sending document %1 of %2…"));
  return isOne ? text : text.arg(work.document).arg(work.documents);
}

QString workText(const PrintTask::Work& work) {
  using Kind = PrintTask::Work::Kind;
  if (work.kind == Kind::saving) return JobButtons::tr("Saving the PDF…");
  if (work.kind != Kind::preparing) return sendingText(work);
  return work.documents == 1 ? JobButtons::tr("Preparing the document…")
                             : JobButtons::tr("Preparing the documents…");
}

}  // namespace

JobButtons::JobButtons(PrintTask& theTask, QWidget* parent)
    : QWidget(parent),
      task(theTask),
      progressText(makeTextLabel(this)),
      progressBar(makeChild<QProgressBar>(this)),
      line(makeChild<QHBoxLayout>()),
      help(makeChild<QPushButton>("?", this)),
      cancel(makeChild<QPushButton>(tr("Cancel"), this)),
      print(makeChild<QPushButton>(tr("&Print"), this)) {
  auto* column = makeChild<QVBoxLayout>(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(progressText);
  column->addWidget(progressBar);
  progressBar->setTextVisible(false);
  addButtons();
  showStage();
  for (const auto signal : {&PrintTask::stageChanged, &PrintTask::printersChanged})
    connect(&task, signal, this, &JobButtons::showStage);
  connect(&task, &PrintTask::progressed, this, &JobButtons::showProgress);
}

void JobButtons::addButtons() {
  help->setObjectName("help");
  help->setAccessibleName(tr("Help"));
  help->setToolTip(tr("Help (F1)"));
  help->setFixedWidth(help->sizeHint().height() * 5 / 4);
  cancel->setObjectName("cancel");
  print->setObjectName("print");
  for (QPushButton* button : {help, cancel}) button->setAutoDefault(false);
  print->setDefault(true);
  line->addWidget(help);
  line->addStretch();
  line->addWidget(cancel);
  line->addWidget(print);
  static_cast<QVBoxLayout*>(layout())->addLayout(line);
  connect(help, &QPushButton::clicked, this, &JobButtons::helpWanted);
  connect(cancel, &QPushButton::clicked, this, &JobButtons::cancelled);
  connect(print, &QPushButton::clicked, this, [this] {
    if (task.stage() == PrintTask::Stage::done) return emit closed();
    emit printWanted();
  });
}

void JobButtons::addBesideHelp(QPushButton* button) {
  button->setAutoDefault(false);
  line->insertWidget(1, button);
}

QString JobButtons::printText() const {
  if (task.stage() == PrintTask::Stage::done) return tr("&Done");
  if (task.stage() == PrintTask::Stage::turning) return tr("&Print Backs");
  return task.target() == PrintTask::Target::file ? tr("Save as &PDF…") : tr("&Print");
}

void JobButtons::showStage() {
  const bool isDone = task.stage() == PrintTask::Stage::done;
  const bool isTurning = task.stage() == PrintTask::Stage::turning;
  for (QWidget* widget : std::initializer_list<QWidget*>{progressText, progressBar})
    widget->setVisible(task.isSending() && !isTurning);
  cancel->setVisible(!isDone);
  print->setText(printText());
  print->setEnabled(isDone || isTurning || task.canPrint());
  if (isDone || isTurning) print->setFocus();
  showProgress({});
}

// Where the size of the job is unknown, the bar only moves to and fro.
void JobButtons::showProgress(const Progress& progress) {
  const bool isTakenBack = task.stage() == PrintTask::Stage::takingBack;
  const QString text = isTakenBack ? tr("Taking the job back…") : workText(task.work());
  const bool isMeasured = !isTakenBack && progress.total > 0;
  progressText->setText(text);
  progressBar->setAccessibleName(text);
  progressBar->setRange(0, isMeasured ? kSteps : 0);
  if (isMeasured) progressBar->setValue(static_cast<int>(progress.done * kSteps / progress.total));
}

}  // namespace tavrin

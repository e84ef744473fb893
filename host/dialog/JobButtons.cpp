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

void JobButtons::showStage() {
  const bool isDone = task.stage() == PrintTask::Stage::done;
  for (QWidget* widget : std::initializer_list<QWidget*>{progressText, progressBar})
    widget->setVisible(task.isSending());
  cancel->setVisible(!isDone);
  const bool isFile = task.target() == PrintTask::Target::file;
  print->setText(isDone ? tr("&Done") : isFile ? tr("&Save…") : tr("&Print"));
  print->setEnabled(isDone || task.canPrint());
  if (isDone) print->setFocus();
  showProgress({});
}

// Where the size of the job is unknown, the bar only moves to and fro.
void JobButtons::showProgress(const Progress& progress) {
  const bool isTakenBack = task.stage() == PrintTask::Stage::takingBack;
  const QString text = isTakenBack ? tr("Taking the job back…") : tr("Sending the document…");
  const bool isMeasured = !isTakenBack && progress.total > 0;
  progressText->setText(text);
  progressBar->setAccessibleName(text);
  progressBar->setRange(0, isMeasured ? kSteps : 0);
  if (isMeasured) progressBar->setValue(static_cast<int>(progress.done * kSteps / progress.total));
}

}  // namespace tavrin

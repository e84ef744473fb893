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

JobButtons::JobButtons(QWidget* parent)
    : QWidget(parent),
      progressText(makeTextLabel(this)),
      progressBar(makeChild<QProgressBar>(this)),
      help(makeChild<QPushButton>("?", this)),
      cancel(makeChild<QPushButton>(tr("Cancel"), this)),
      print(makeChild<QPushButton>(tr("&Print"), this)) {
  auto* column = makeChild<QVBoxLayout>(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(progressText);
  column->addWidget(progressBar);
  progressBar->setTextVisible(false);
  addButtons();
  setState(State::cannotPrint);
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
  auto* line = makeChild<QHBoxLayout>();
  line->addWidget(help);
  line->addStretch();
  line->addWidget(cancel);
  line->addWidget(print);
  static_cast<QVBoxLayout*>(layout())->addLayout(line);
  connect(help, &QPushButton::clicked, this, &JobButtons::helpWanted);
  connect(cancel, &QPushButton::clicked, this, &JobButtons::cancelled);
  connect(print, &QPushButton::clicked, this, [this] {
    if (now == State::done) return emit closed();
    emit printWanted();
  });
}

void JobButtons::setState(State state) {
  now = state;
  cancelling = false;
  progressText->setVisible(state == State::printing);
  progressBar->setVisible(state == State::printing);
  cancel->setVisible(state != State::done);
  print->setText(state == State::done ? tr("&Done") : tr("&Print"));
  print->setEnabled(state == State::ready || state == State::done);
  if (state == State::done) print->setFocus();
}

void JobButtons::showCancelling() {
  showProgress(tr("Taking the job back…"), -1);
  cancelling = true;
}

void JobButtons::showProgress(const QString& text, double done) {
  if (cancelling) return;
  progressText->setText(text);
  progressBar->setAccessibleName(text);
  progressBar->setRange(0, done < 0 ? 0 : kSteps);
  progressBar->setValue(static_cast<int>(done * kSteps));
}

}  // namespace tavrin

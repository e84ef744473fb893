#include "host/pages/TurnPage.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QShowEvent>

#include "host/document/DocumentName.h"
#include "host/notes/Announcement.h"
#include "host/notes/Headline.h"
#include "host/pages/TurnPicture.h"
#include "host/panes/Widgets.h"
#include "host/printer/Paper.h"
#include "host/request/JobSetting.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {
namespace {

QLabel* makeText(const QString& words, QWidget* parent) {
  QLabel* label = makeTextLabel(parent);
  label->setText(words);
  return label;
}

}  // namespace

TurnPage::TurnPage(PrintTask& theTask, QWidget* parent)
    : QScrollArea(parent),
      task(theTask),
      content(makeChild<QWidget>(this)),
      headline(makeHeadline(tr("Turn the paper"), content)),
      document(makeTextLabel(content)),
      turnStep(makeTextLabel(content)),
      picture(makeChild<TurnPicture>(content)),
      reversed(makeChild<QCheckBox>(tr("Print the backs in &reverse order"), content)) {
  setObjectName("turnPage");
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  build();
  setWidget(content);
}

void TurnPage::build() {
  auto* grid = makeChild<QGridLayout>(content);
  const int line = fontMetrics().height();
  grid->setContentsMargins(line, line, line, line);
  grid->setVerticalSpacing(line / 2);
  grid->setColumnStretch(1, 1);
  const auto addAcross = [&](QWidget* widget) {
    grid->addWidget(widget, grid->rowCount(), 0, 1, 2);
  };
  addAcross(headline);
  addAcross(document);
  addSteps(*grid);
  addAcross(picture);
  addAcross(makeText(
      tr("Then print the backs. If you cancel, the fronts stay printed and the backs blank."),
      content));
  reversed->setObjectName("backsReversed");
  addAcross(reversed);
  addAcross(makeText(tr("This is for a printer from which the backs came out on the "
                        "wrong sheets."),
                     content));
  grid->setRowStretch(grid->rowCount(), 1);
}

void TurnPage::addSteps(QGridLayout& grid) {
  steps = {makeText(tr("Wait until all the fronts have come out."), content),
           makeText(tr("Take out the whole stack. Leave its sheets in their order."), content),
           turnStep,
           makeText(tr("Put it back into the tray, so that the printer prints on the "
                       "blank sides."),
                    content)};
  int number = 0;
  for (QLabel* step : steps) {
    const int row = grid.rowCount();
    auto* mark = makeChild<QLabel>(tr("%1.", "step of instructions").arg(++number), content);
    grid.addWidget(mark, row, 0, Qt::AlignTop | Qt::AlignTrailing);
    grid.addWidget(step, row, 1);
  }
}

JobSequence::BackOrder TurnPage::backOrder() const {
  using BackOrder = JobSequence::BackOrder;
  return reversed->isChecked() ? BackOrder::reversed : BackOrder::same;
}

void TurnPage::showEvent(QShowEvent* event) {
  QScrollArea::showEvent(event);
  if (event->spontaneous()) return;
  refresh();
  QStringList texts{headline->text(), document->text()};
  for (const QLabel* step : steps) texts << step->text();
  texts.removeAll("");
  announce(*this, texts.join(' '));
}

void TurnPage::refresh() {
  const QString which = whichDocument();
  document->setText(which);
  document->setVisible(!which.isEmpty());
  const bool isShort = optionValue(task.options(), kSidesOption) == OptString(kTwoSidedShortEdge);
  turnStep->setText(isShort
                        ? tr("Turn the stack over along its short edge, like a page of a wall "
                             "calendar.")
                        : tr("Turn the stack over along its long edge, like a page of a book."));
  const QSizeF paper = task.preparation().paper.size;
  picture->setTurn(isShort ? TurnPicture::Edge::shorter : TurnPicture::Edge::longer, paper);
}

// Empty where there is only one.
QString TurnPage::whichDocument() const {
  const PrintTask::Work work = task.work();
  if (work.documents < 2) return {};
  const DocumentFacts& current = task.documents().all()[work.document - 1];
  return tr("Document %1 of %2: “%3”")
      .arg(work.document)
      .arg(work.documents)
      .arg(shownLine(nameInWords(current.document)));
}

}  // namespace tavrin

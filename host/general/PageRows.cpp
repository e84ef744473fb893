#include "host/general/PageRows.h"

#include <chrono>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "host/fields/FieldPopUp.h"
#include "host/fields/FieldSwitch.h"
#include "host/general/WrappedLabel.h"
#include "host/panes/Widgets.h"
#include "host/task/JobFields.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {
namespace {

// Longer than the pauses between two keys, shorter than the way to the next field.
constexpr std::chrono::milliseconds kTypingRest(800);

}  // namespace

PageRows::PageRows(JobFields& theFields, QFormLayout& theForm)
    : QObject(theForm.parentWidget()),
      fields(theFields),
      form(theForm),
      all(makeChild<QRadioButton>(tr("A&ll"), form.parentWidget())),
      some(makeChild<QRadioButton>(tr("&Range:"), form.parentWidget())),
      range(makeChild<QLineEdit>(form.parentWidget())),
      problem(makeChild<WrappedLabel>(form.parentWidget())),
      pageSet(
          makeChild<FieldPopUp>(fields, kPageSetOption, tr("Odd or Even"), form.parentWidget())),
      order(makeChild<FieldSwitch>(fields, kSheetOrderOption, tr("Rever&se Order"),
                                   form.parentWidget())) {
  addRange();
  addPageSet();
  refresh();
  connectParts();
}

// A row with several widgets in a line.
QLabel* PageRows::addLine(const QString& label, const std::vector<QWidget*>& widgets) {
  auto* row = makeChild<QWidget>(form.parentWidget());
  auto* line = makeChild<QHBoxLayout>(row);
  line->setContentsMargins(0, 0, 0, 0);
  for (QWidget* widget : widgets) line->addWidget(widget);
  return addRow(form, label, *row);
}

void PageRows::addRange() {
  range->setObjectName("pageRange");
  range->setAccessibleName(tr("Page range"));
  problem->setObjectName("pageRangeProblem");
  addLine(tr("Pages:"), {all, some, range});
  form.addRow(nullptr, problem);
}

void PageRows::addPageSet() {
  pageSet->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  pageSetLabel = addLine(tr("O&dd or Even:"), {pageSet, order});
  pageSetLabel->setBuddy(pageSet);
}

void PageRows::connectParts() {
  typingRest.setSingleShot(true);
  typingRest.setInterval(kTypingRest);
  connect(&typingRest, &QTimer::timeout, this, &PageRows::showProblem);
  connect(&fields, &JobFields::suggestionTaken, this, &PageRows::refresh);
  connect(&fields, &JobFields::changed, this, &PageRows::showChoice);
  connect(range, &QLineEdit::textEdited, this, [this] {
    some->setChecked(true);
    take();
    // A range that is being typed is not wrong yet; but one that was wrong may be right now.
    problem->isHidden() ? typingRest.start() : showProblem();
  });
  connect(range, &QLineEdit::editingFinished, this, &PageRows::showProblem);
  for (QRadioButton* button : {all, some})
    connect(button, &QRadioButton::clicked, this, [this] {
      take();
      showProblem();
    });
  connect(some, &QRadioButton::clicked, range, [this] { range->setFocus(); });
  connect(pageSet, &QComboBox::activated, this, &PageRows::showProblem);
}

void PageRows::take() { fields.setPages({all->isChecked(), range->text()}); }

// Shows the fields as they were suggested.
void PageRows::refresh() {
  const JobFields::Pages& pages = fields.pages();
  const QString text = shownLine(pages.range.toStdString());
  if (range->text() != text) range->setText(text);
  (pages.all ? all : some)->setChecked(true);
  showHint();
  showProblem();
  showChoice();
}

void PageRows::showHint() {
  const int pages = fields.documentPages();
  range->setPlaceholderText(pages > 1   ? tr("1-%1", "pages").arg(pages)
                            : pages > 0 ? tr("the document has one page")
                                        : tr("for example 1-3,5"));
}

void PageRows::showChoice() {
  const bool hasChoice = fields.hasPagesToChoose();
  for (QWidget* widget : std::initializer_list<QWidget*>{some, range, pageSet, pageSetLabel}) {
    widget->setEnabled(hasChoice);
    widget->setToolTip(hasChoice ? QString() : toolTipFor(tr("The document has one page.")));
  }
}

void PageRows::showProblem() {
  typingRest.stop();
  const QString text = fields.pagesProblem();
  problem->setText(text);
  problem->setVisible(!text.isEmpty());
}

void PageRows::focusRange() {
  showProblem();
  range->setFocus();
  range->selectAll();
}

void PageRows::leaveOrderToPrinter(bool printers) { order->setDisabled(printers); }

}  // namespace tavrin

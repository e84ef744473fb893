#include "host/panes/OptionControl.h"

#include <algorithm>

#include <QSignalBlocker>

#include "host/panes/Widgets.h"
#include "platform/qt/ShownText.h"
#include "ppd/PPDRecords.h"

namespace tavrin {

namespace {

constexpr char kOn[] = "True";
constexpr char kOff[] = "False";
constexpr int kMostVisibleRows = 5;

bool hasChoice(const ppd_option_t& option, const std::string& keyword) {
  return std::ranges::any_of(choicesOf(option),
                             [&](const ppd_choice_t& choice) { return choice.choice == keyword; });
}

}  // namespace

bool isBoolean(const ppd_option_t& option) {
  return option.ui == PPD_UI_BOOLEAN && choicesOf(option).size() == 2 && hasChoice(option, kOn) &&
         hasChoice(option, kOff);
}

PickOneControl::PickOneControl(PPDMarks& theMarks, const ppd_option_t& theOption, QWidget* parent)
    : QComboBox(parent), marks(theMarks), option(theOption) {
  setObjectName(QString::fromLatin1(option.keyword));
  setAccessibleName(shownLine(option.text));
  setPlaceholderText(tr("Not chosen"));
  refresh();
  letPopUpShrink(*this);
  connect(&marks, &PPDMarks::refreshed, this, &PickOneControl::refresh);
  connect(this, &QComboBox::activated, this, [this](int index) {
    marks.choose(option.keyword, itemData(index).toString().toStdString());
  });
}

void PickOneControl::fill() {
  clear();
  for (const ppd_choice_t* choice : pickableChoices(option, marks.ppd()))
    addItem(shownLine(choice->text), QString::fromUtf8(choice->choice));
}

void PickOneControl::refresh() {
  const OptString marked = marks.choice(option.keyword);
  const QString keyword = QString::fromStdString(marked.value_or(""));
  if (count() == 0 || (marked && findData(keyword) < 0)) fill();
  setCurrentIndex(marked ? findData(keyword) : -1);
}

BooleanControl::BooleanControl(PPDMarks& theMarks, const ppd_option_t& theOption, QWidget* parent)
    : QCheckBox(parent), marks(theMarks), option(theOption) {
  setObjectName(QString::fromLatin1(option.keyword));
  setText(withoutMnemonics(shownLine(option.text)));
  setAccessibleName(shownLine(option.text));
  refresh();
  connect(&marks, &PPDMarks::refreshed, this, &BooleanControl::refresh);
  connect(this, &QCheckBox::clicked, this,
          [this] { marks.choose(option.keyword, isChecked() ? kOn : kOff); });
}

void BooleanControl::refresh() {
  const OptString marked = marks.choice(option.keyword);
  setTristate(!marked);
  setCheckState(!marked ? Qt::PartiallyChecked : *marked == kOn ? Qt::Checked : Qt::Unchecked);
}

PickManyControl::PickManyControl(PPDMarks& theMarks, const ppd_option_t& theOption, QWidget* parent)
    : QListWidget(parent), marks(theMarks), option(theOption) {
  setObjectName(QString::fromLatin1(option.keyword));
  setAccessibleName(shownLine(option.text));
  fill();
  refresh();
  setTabKeyNavigation(false);
  setFixedHeight(sizeHintForRow(0) * std::min(count(), kMostVisibleRows) + 2 * frameWidth());
  connect(&marks, &PPDMarks::refreshed, this, &PickManyControl::refresh);
  connect(this, &QListWidget::itemChanged, this, [this](const QListWidgetItem* item) {
    marks.setPicked(option.keyword, item->data(Qt::UserRole).toString().toStdString(),
                    item->checkState() == Qt::Checked);
  });
}

void PickManyControl::fill() {
  const QSignalBlocker quiet(this);
  for (const ppd_choice_t* choice : pickableChoices(option, marks.ppd())) {
    auto* item = makeChild<QListWidgetItem>(shownLine(choice->text), this);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setData(Qt::UserRole, QString::fromUtf8(choice->choice));
    item->setCheckState(Qt::Unchecked);
  }
}

void PickManyControl::refresh() {
  const QSignalBlocker quiet(this);
  for (int row = 0; row < count(); ++row) {
    const std::string keyword = item(row)->data(Qt::UserRole).toString().toStdString();
    item(row)->setCheckState(marks.isMarked(option.keyword, keyword) ? Qt::Checked : Qt::Unchecked);
  }
}

QWidget* makeOptionControl(PPDMarks& marks, const ppd_option_t& option, QWidget* parent) {
  if (option.ui == PPD_UI_PICKMANY) return makeChild<PickManyControl>(marks, option, parent);
  if (isBoolean(option)) return makeChild<BooleanControl>(marks, option, parent);
  return makeChild<PickOneControl>(marks, option, parent);
}

}  // namespace tavrin

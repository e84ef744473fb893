#include "host/panes/PickManyControl.h"

#include <algorithm>

#include <QSignalBlocker>

#include "host/panes/Widgets.h"
#include "host/printer/PPDSections.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {
namespace {

constexpr int kMostVisibleRows = 5;

}  // namespace

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

}  // namespace tavrin

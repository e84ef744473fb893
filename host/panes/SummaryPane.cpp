#include "host/panes/SummaryPane.h"

#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "host/panes/Widgets.h"

namespace tavrin {

namespace {

constexpr int kLeastLines = 8;  // that can be seen however little room there is

QTreeWidgetItem* addHeading(QTreeWidget& list, const QString& name) {
  auto* heading = makeChild<QTreeWidgetItem>(&list, QStringList{name});
  QFont bold = list.font();
  bold.setBold(true);
  heading->setFont(0, bold);
  heading->setFirstColumnSpanned(true);
  heading->setExpanded(true);
  return heading;
}

void addLine(QTreeWidgetItem& heading, const QString& label, const QString& value) {
  auto* line = makeChild<QTreeWidgetItem>(&heading, QStringList{label, value});
  // A list elides what is too long for its column; here it can still be read.
  line->setToolTip(0, toolTipFor(label));
  line->setToolTip(1, toolTipFor(value));
}

}  // namespace

SummaryPane::SummaryPane(std::function<QString()> theWords, std::function<Sections()> theSections,
                         QWidget* parent)
    : Pane(tr("Summary"), parent),
      inWords(std::move(theWords)),
      sections(std::move(theSections)),
      sentence(makeTextLabel(this)),
      list(makeChild<QTreeWidget>(this)) {
  auto* column = makeChild<QVBoxLayout>(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(sentence);
  column->addWidget(list);
  sentence->setObjectName("inWords");
  list->setObjectName("summary");
  list->setAccessibleName(tr("Summary of all settings"));
  list->setColumnCount(2);
  list->setHeaderLabels({tr("Setting"), tr("Value")});
  list->setRootIsDecorated(false);
  list->setItemsExpandable(false);
  list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  // All lines where there is room for them, and a bar only where there is not.
  list->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
  list->setMinimumHeight(kLeastLines * list->fontMetrics().height() * 3 / 2);
}

void SummaryPane::willShow() {
  const QString words = inWords();
  sentence->setText(tr("%1.", "a sentence").arg(words.left(1).toUpper() + words.mid(1)));
  list->setAccessibleDescription(sentence->text());
  list->clear();
  for (const auto& [name, values] : sections()) {
    if (values.empty()) continue;
    QTreeWidgetItem* heading = addHeading(*list, name);
    for (const auto& [label, value] : values) addLine(*heading, label, value);
  }
  list->updateGeometry();
}

}  // namespace tavrin

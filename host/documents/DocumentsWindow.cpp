#include "host/documents/DocumentsWindow.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "host/document/DocumentName.h"
#include "host/documents/AddedDocuments.h"
#include "host/panes/Widgets.h"
#include "host/task/PrintTask.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {

DocumentsWindow::DocumentsWindow(PrintTask& theTask, QWidget* parent)
    : QDialog(parent),
      task(theTask),
      list(makeChild<QListWidget>(this)),
      add(makeChild<QPushButton>(tr("&Add…"), this)),
      remove(makeChild<QPushButton>(tr("&Remove"), this)) {
  setWindowTitle(tr("Documents to Print"));
  build();
  connect(add, &QPushButton::clicked, this, [this] { askForDocuments(task, this); });
  connect(remove, &QPushButton::clicked, this, &DocumentsWindow::removeSelected);
  auto* deleteKey = makeChild<QShortcut>(QKeySequence(QKeySequence::Delete), list);
  connect(deleteKey, &QShortcut::activated, remove, &QPushButton::click);
  connect(list, &QListWidget::itemSelectionChanged, this, &DocumentsWindow::showWhatCanBeRemoved);
  connect(&task, &PrintTask::documentsChanged, this, &DocumentsWindow::refresh);
  refresh();
}

void DocumentsWindow::build() {
  list->setObjectName("documentList");
  list->setAccessibleName(windowTitle());
  list->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list->setTextElideMode(Qt::ElideMiddle);
  add->setObjectName("addDocuments");
  remove->setObjectName("removeDocuments");
  for (QPushButton* button : {add, remove}) button->setAutoDefault(false);
  auto* buttons = makeChild<QDialogButtonBox>(this);
  // The box's own Close would be the only button with an icon.
  buttons->addButton(tr("&Close"), QDialogButtonBox::RejectRole);
  buttons->addButton(add, QDialogButtonBox::ActionRole);
  buttons->addButton(remove, QDialogButtonBox::ActionRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* rows = makeChild<QVBoxLayout>(this);
  rows->addWidget(list);
  rows->addWidget(buttons);
}

// What is known of a document changes more often than the list; the selection stays then.
void DocumentsWindow::refresh() {
  const std::vector<DocumentFacts>& all = task.documents().all();
  const int count = static_cast<int>(all.size());
  while (list->count() > count)
    std::unique_ptr<QListWidgetItem>(list->takeItem(list->count() - 1)).reset();
  while (list->count() < count) list->addItem(QString());
  for (std::size_t place = 0; place < all.size(); ++place) {
    QListWidgetItem& item = *list->item(static_cast<int>(place));
    item.setText(shownLine(nameInWords(all[place].document)));
    item.setToolTip(toolTipFor(shownLine(all[place].document.string())));
  }
  if (!list->currentItem()) select(0);
  showWhatCanBeRemoved();
}

void DocumentsWindow::select(int row) {
  list->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
}

// One stays: it is what the dialog is about.
void DocumentsWindow::showWhatCanBeRemoved() {
  const auto selected = list->selectedItems().size();
  remove->setEnabled(selected > 0 && selected < list->count() && task.canTakeDocuments());
}

void DocumentsWindow::removeSelected() {
  std::vector<int> rows;
  for (const QListWidgetItem* item : list->selectedItems()) rows.push_back(list->row(item));
  std::ranges::sort(rows, std::greater());
  list->clearSelection();
  for (const int row : rows) task.removeDocument(static_cast<std::size_t>(row));
  select(std::min(rows.back(), list->count() - 1));
}

}  // namespace tavrin

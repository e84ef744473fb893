#include "host/documents/DocumentsRow.h"

#include <QFormLayout>
#include <QToolButton>

#include "host/documents/AddedDocuments.h"
#include "host/documents/DocumentsWindow.h"
#include "host/panes/Widgets.h"
#include "host/task/PrintTask.h"

namespace tavrin {

DocumentsRow::DocumentsRow(PrintTask& theTask, QWidget* parent)
    : QWidget(parent), task(theTask), button(makeChild<QToolButton>(this)) {
  button->setObjectName("documents");
  // Were it a push button, a dialog in which it came first would begin at its default button.
  button->setFocusPolicy(Qt::StrongFocus);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  addRow(*makeForm(this), tr("Documents:"), *button);
  connect(button, &QToolButton::clicked, this, &DocumentsRow::showList);
  connect(&task, &PrintTask::documentsChanged, this, &DocumentsRow::refresh);
  refresh();
}

void DocumentsRow::refresh() {
  const auto count = static_cast<int>(task.documents().all().size());
  button->setText(tr("%n documents…", nullptr, count));
  button->setAccessibleName(tr("Documents: %n", nullptr, count));
  button->setToolTip(toolTipFor(documentNames(task)));
  setVisible(count > 1);
}

void DocumentsRow::showList() {
  if (!list) list = makeChild<DocumentsWindow>(task, this);
  list->open();
}

}  // namespace tavrin

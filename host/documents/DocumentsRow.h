#pragma once

#include <QWidget>

class QToolButton;

namespace tavrin {

class DocumentsWindow;
class PrintTask;

// Says how many documents are printed and leads to their list. Hidden while there is only one: then
// there is nothing to say.
class DocumentsRow : public QWidget {
  Q_OBJECT

 public:
  // The task outlives the row.
  DocumentsRow(PrintTask& task, QWidget* parent);

 private:
  void refresh();
  void showList();

  PrintTask& task;
  QToolButton* button;
  DocumentsWindow* list = nullptr;  // null before it was wanted
};

}  // namespace tavrin

#pragma once

#include <QDialog>

class QListWidget;
class QPushButton;

namespace tavrin {

class PrintTask;

// The documents that are printed, in their order: to look them over, add some and take some out.
class DocumentsWindow : public QDialog {
  Q_OBJECT

 public:
  // The task outlives the window.
  DocumentsWindow(PrintTask& task, QWidget* parent);

 private:
  void build();
  void refresh();
  void select(int row);
  void showWhatCanBeRemoved();
  void removeSelected();

  PrintTask& task;
  QListWidget* list;
  QPushButton* add;
  QPushButton* remove;
};

}  // namespace tavrin

#pragma once

#include <QComboBox>

namespace tavrin {

class PrintTask;

// The pop-up of printers. Each is there as people know it; the list tells more of it.
class PrinterPopUp : public QComboBox {
  Q_OBJECT

 public:
  // Shows the task's printers, and passes the person's choice on to it. The task outlives the
  // pop-up.
  PrinterPopUp(PrintTask& task, QWidget* parent);

 private:
  struct Row {
    QString title;
    QString details;
  };

  void refresh();
  void choose(int index);
  std::vector<Row> rows() const;
  std::vector<Row> printerRows() const;
  int chosenRow() const;
  void setRow(int index, const Row& row);

  PrintTask& task;
};

}  // namespace tavrin

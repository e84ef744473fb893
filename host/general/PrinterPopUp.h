#pragma once

#include <QComboBox>

namespace tavrin {

class PrintTask;

// The pop-up of printers, each with what it is doing beside its name.
class PrinterPopUp : public QComboBox {
  Q_OBJECT

 public:
  // Shows the task's printers, and passes the person's choice on to it. The task outlives the
  // pop-up.
  PrinterPopUp(PrintTask& task, QWidget* parent);

 private:
  void refresh();
  QStringList rows() const;

  PrintTask& task;
};

}  // namespace tavrin

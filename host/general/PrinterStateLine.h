#pragma once

#include <QWidget>

#include "host/task/PrinterList.h"

class QLabel;

namespace tavrin {

class ElidedLabel;
class PrintTask;

// The line below the printer: what the chosen one is doing and where it stands, with a sign where
// it cannot print now or needs a look. It takes the same room whatever it says.
class PrinterStateLine : public QWidget {
  Q_OBJECT

 public:
  // The task outlives the line.
  PrinterStateLine(PrintTask& task, QWidget* parent);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void refresh();
  void say(const QString& text, Concern concern, const QString& toolTip);
  void showSign();

  PrintTask& task;
  QLabel* sign;
  ElidedLabel* label;
  Concern concern = Concern::none;
};

}  // namespace tavrin

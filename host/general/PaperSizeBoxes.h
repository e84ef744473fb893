#pragma once

#include <QWidget>

#include "host/printer/CustomPaper.h"

class QDoubleSpinBox;

namespace tavrin {

class PPDMarks;

// Width and height of paper of the person's own size, in millimetres or inches, as people in the
// user's country measure paper.
class PaperSizeBoxes : public QWidget {
  Q_OBJECT

 public:
  // Shows the marked paper, and marks the one that the person asks for. The marks outlive the
  // boxes; their PPD takes custom paper.
  PaperSizeBoxes(PPDMarks& marks, QWidget* parent);

  // Marks a custom paper as large as the one that is marked, if the printer takes that.
  void begin();

  // Both numbers with their unit.
  QString summary() const;

 private:
  struct Unit {
    double points;
    int decimals;
    QString suffix;
  };

  Unit unitOfCountry() const;
  QDoubleSpinBox* addBox(const char* objectName, const QString& name);
  void refresh();
  void show(QDoubleSpinBox& box, double least, double most, double points);
  void mark(PaperSize size);

  PPDMarks& marks;
  Unit unit;
  QDoubleSpinBox* width;
  QDoubleSpinBox* height;
};

}  // namespace tavrin

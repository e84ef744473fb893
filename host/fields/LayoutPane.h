#pragma once

#include <string>
#include <vector>

#include "host/panes/Pane.h"
#include "host/printer/PPDMarks.h"

class QFormLayout;

namespace tavrin {

class JobFields;
class ScalingControl;

// How pages come to lie on sheets: which way up, how large and where, how many together and on how
// many sides.
class LayoutPane : public Pane {
  Q_OBJECT

 public:
  // Shows the fields and passes the person's changes on to them. The fields outlive the pane.
  LayoutPane(JobFields& fields, QWidget* parent);

  // Takes the printer's two-sided option, and leaves alone what the printer has itself; null for no
  // printer. The marks outlive their use here.
  void setMarks(PPDMarks* marks);

  Lines summary() const override;

 private:
  struct Row {
    std::string option;
    QString name;
    QWidget* control;
  };

  void addRows();
  void addPopUp(const char* option, const QString& name, const QString& label);
  void addScalingRow();
  void addSwitch(const char* option, const QString& name, const QString& text);
  void addTwoSidedRow();
  QWidget* twoSidedControl();

  void refresh();
  void refresh(const Row& row);
  bool isShown(const std::string& option) const;
  bool isPrintersOwn(const std::string& option) const;
  QString textOf(const Row& row) const;

  void followBooklet();
  OptString sides() const;
  void chooseSides(const std::string& choice);

  JobFields& fields;
  QFormLayout* form;
  std::vector<Row> rows;
  ScalingControl* scaling = nullptr;
  QWidget* twoSidedRow = nullptr;
  PPDMarks* marks = nullptr;
  std::string twoSided;     // the printer's option; empty if it has none
  OptString beforeBooklet;  // how both sides were printed before there was a booklet
};

}  // namespace tavrin

#pragma once

#include <string>

#include "host/panes/Pane.h"
#include "host/printer/PPDMarks.h"

class QComboBox;
class QFormLayout;

namespace tavrin {

class JobFields;

// How pages lie on the sheets: pages per sheet, and two-sided printing where the printer can.
class LayoutPane : public Pane {
  Q_OBJECT

 public:
  // Shows the field and passes the person's change on to it. The fields outlive the pane.
  LayoutPane(JobFields& fields, QWidget* parent);

  // Takes the printer's two-sided option; null for no printer. The marks outlive their use here.
  void setMarks(PPDMarks* marks);

  Lines summary() const override;

 private:
  void refresh();

  JobFields& fields;
  QFormLayout* form;
  QComboBox* pagesPopUp;
  PPDMarks* marks = nullptr;
  std::string twoSided;  // the option's keyword; empty if the printer has none
};

}  // namespace tavrin

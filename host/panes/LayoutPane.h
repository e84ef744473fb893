#pragma once

#include <array>
#include <string>

#include "host/panes/Pane.h"
#include "host/printer/PPDMarks.h"

class QComboBox;
class QFormLayout;

// The pane for how pages lie on the sheets.

namespace tavrin {

// The numbers of pages on a sheet that the print system can lay out.
inline constexpr std::array kPagesPerSheet{1, 2, 4, 6, 9, 16};

// Pages per sheet, and two-sided printing where the printer can.
class LayoutPane : public Pane {
  Q_OBJECT

 public:
  explicit LayoutPane(QWidget* parent);

  int pagesPerSheet() const;
  // What the program or the printer would have. Stays without effect once the person has picked a
  // number. False, and nothing changes, for one that the print system cannot lay out.
  bool suggestPagesPerSheet(int pages);

  // Takes the printer's two-sided option; null for no printer. The marks outlive their use here.
  void setMarks(PPDMarks* marks);

  Lines summary() const override;

 signals:
  void pagesPerSheetChanged(int pages);

 private:
  QFormLayout* form;
  QComboBox* pagesPopUp;
  bool pickedByHand = false;
  PPDMarks* marks = nullptr;
  std::string twoSided;  // the option's keyword; empty where there is none
};

}  // namespace tavrin

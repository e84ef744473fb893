#pragma once

#include <set>
#include <string>
#include <vector>

#include "host/panes/Pane.h"
#include "host/printer/PPDMarks.h"
#include "host/printer/PPDSections.h"

class QComboBox;
class QVBoxLayout;

namespace tavrin {

// The options of the printer's PPD that no panel and no other part of the dialog shows, in the
// PPD's groups: one group at a time, so that a printer with hundreds of options stays in reach.
class FeaturesPane : public Pane {
  Q_OBJECT

 public:
  // The marks outlive the pane. The keywords name the options to leave out.
  FeaturesPane(PPDMarks& marks, const std::set<std::string>& shownElsewhere, QWidget* parent);

  // Whether there is nothing to show.
  bool isEmpty() const { return sections.empty(); }

  Lines summary() const override;
  void willShow() override;

 signals:
  // The pane has different controls now.
  void laidOutAnew();

 private:
  void addGroupPopUp();
  void showSection(int index);

  PPDMarks& marks;
  std::vector<PPDSection> sections;
  QVBoxLayout* column;
  QWidget* page = nullptr;  // the group that is shown
};

// The PPD's groups without those options, those that are named like settings of a job, and the
// group of what is installed in the printer; a very long group split into several; groups that are
// left empty are left out.
std::vector<PPDSection> featureSections(const ppd_file_t& ppd,
                                        const std::set<std::string>& shownElsewhere);

}  // namespace tavrin

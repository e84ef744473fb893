#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "host/panes/Pane.h"

class QTreeWidget;

namespace tavrin {

// Every other pane's settings in one list, to be read (and read aloud) before printing.
class SummaryPane : public Pane {
  Q_OBJECT

 public:
  // A pane's name with its lines.
  using Sections = std::vector<std::pair<QString, Lines>>;

  // Asks for what it lists each time it is shown.
  SummaryPane(std::function<Sections()> sections, QWidget* parent);

  Lines summary() const override { return {}; }
  void willShow() override;

 private:
  std::function<Sections()> sections;
  QTreeWidget* list;
};

}  // namespace tavrin

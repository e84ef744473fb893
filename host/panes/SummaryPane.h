#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "host/panes/Pane.h"

class QLabel;
class QTreeWidget;

namespace tavrin {

// What will be printed in words, and every other pane's settings in one list, to be read (and read
// aloud) before printing.
class SummaryPane : public Pane {
  Q_OBJECT

 public:
  // A pane's name with its lines.
  using Sections = std::vector<std::pair<QString, Lines>>;

  // Asks for the words and for what it lists each time it is shown.
  SummaryPane(std::function<QString()> inWords, std::function<Sections()> sections,
              QWidget* parent);

  Lines summary() const override { return {}; }
  void willShow() override;

 private:
  std::function<QString()> inWords;
  std::function<Sections()> sections;
  QLabel* sentence;
  QTreeWidget* list;
};

}  // namespace tavrin

#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/contract/PrintDialogExtension.h"
#include "ppd/CupsHandles.h"
#include "tests/fakes/FakeJob.h"
#include "tests/fakes/FakeToolkit.h"
#include "tests/randomwalk/Step.h"

namespace tavrin::walk {

// What a host can see of one setting: the ticket that the panel hands over and the value in its
// summary. Absent tickets and values compare equal here.
struct Setting {
  OptString ticket;
  bool inSummary = false;
  OptString value;

  friend bool operator==(const Setting&, const Setting&) = default;
};
using Settings = std::map<std::string, Setting>;  // by PPD keyword

// One open panel with its host, worked through the host protocol and its controls alone.
class PanelUnderTest {
 public:
  PanelUnderTest(const Printer& printer, FakeToolkit& toolkit);

  // Whether a user or host could do the step now; does it if so. A conflict window's answers are
  // the toolkit's.
  bool carryOut(const Step& step);

  Settings settings();
  // The conflicts of the panel as it stands, found by a separate checker, without the flagged ones.
  std::vector<int> conflicts();

  ppd_option_t* option(const std::string& key) const {
    return ppdFindOption(ppd.get(), key.c_str());
  }
  bool hasTray2() const { return tray2; }
  FakeInterface& controls() { return *view; }
  const FakeHost& host() const { return job; }

 private:
  bool choose(const std::string& popUp, int number);
  bool click(const std::string& button);
  bool slide(int value);
  bool mark(const std::string& key, const OptString& choice);
  bool unmark(const std::string& key);
  bool canBeWorked(const std::string& control, bool hidden, bool enabled) const;

  PPDPtr ppd;
  FakeHost job;
  std::unique_ptr<PDEPanel> panel;
  std::shared_ptr<FakeInterface> view;
  bool tray2 = false;
};

}  // namespace tavrin::walk

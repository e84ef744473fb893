#pragma once

#include <map>
#include <string>
#include <vector>

#include <QObject>

#include "platform/text/OptionalString.h"
#include "ppd/CupsHandles.h"

namespace tavrin {

// The marked choices of a printer's PPD, as all panes of the dialog see and change them. It exists
// so that a choice made in one pane shows in every other.
class PPDMarks : public QObject {
  Q_OBJECT

 public:
  // The PPD is borrowed and outlives this object.
  explicit PPDMarks(ppd_file_t& ppd, QObject* parent = nullptr);

  ppd_file_t& ppd() const { return *file; }
  // Null where the printer has no such option.
  const ppd_option_t* option(const std::string& keyword) const;

  // The marked choice's keyword; absent for an unknown option and for one without a mark.
  OptString choice(const std::string& keyword) const;
  // The same choice's text for the screen; the texts of all marked ones in a list where many can be
  // picked.
  OptString choiceText(const std::string& keyword) const;
  bool isMarked(const std::string& keyword, const std::string& choice) const;

  // Takes the person's choice, and tells of every option whose mark has changed: marking a choice
  // can take the mark from a related option. A choice that the option does not have changes
  // nothing.
  void choose(const std::string& keyword, const std::string& choice);
  // The same for one entry of a list where many can be picked.
  void setPicked(const std::string& keyword, const std::string& choice, bool picked);

  // To be called when somebody else has marked choices in the PPD.
  void marksWereReplaced();

  // The texts of the options whose marked choices contradict each other by the PPD's rules, each
  // once; the page region, which comes with the paper size, by the latter's.
  std::vector<std::string> conflictingOptions() const;

 signals:
  // One option's choice was changed by the person.
  void changed(const std::string& keyword, const tavrin::OptString& choice);
  // Any mark may have changed; sent after `changed` too.
  void refreshed();

 private:
  // The marked choices of every option, by its keyword.
  using Snapshot = std::map<std::string, std::string>;
  Snapshot snapshot() const;
  const char* nameOf(const ppd_option_t& option) const;
  void tellDifferences(const Snapshot& before);

  ppd_file_t* file;
};

}  // namespace tavrin

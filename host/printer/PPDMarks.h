#pragma once

#include <map>
#include <string>
#include <vector>

#include <QObject>

#include "platform/text/OptionalString.h"
#include "ppd/CupsHandles.h"

namespace tavrin {

// The marked choices of the selected printer's PPD, as all panes of the dialog see and change
// them. It exists so that a choice made in one pane shows in every other.
class PPDMarks : public QObject {
  Q_OBJECT

 public:
  // The PPD is borrowed and outlives this object.
  explicit PPDMarks(ppd_file_t& ppd, QObject* parent = nullptr);

  ppd_file_t& ppd() const { return *file; }
  // Null where the printer has no such option.
  const ppd_option_t* option(const std::string& keyword) const;

  // The marked choice's keyword; absent for an unknown option and one without a mark.
  OptString choice(const std::string& keyword) const;
  // Its text for the screen, of all marked ones for a list where many can be picked; absent
  // likewise.
  OptString choiceText(const std::string& keyword) const;
  bool isMarked(const std::string& keyword, const std::string& choice) const;

  // The person's choice. Tells of every option whose mark is another one now: marking can take
  // away the mark of a related option. A choice that the option does not have changes nothing.
  void choose(const std::string& keyword, const std::string& choice);
  // The same for one entry of a list where many can be picked.
  void setPicked(const std::string& keyword, const std::string& choice, bool picked);

  // To be called when somebody else has marked choices in the PPD.
  void marksWereReplaced();

  // The texts of the options that the PPD's rules do not let go together now; empty when all do.
  std::vector<std::string> conflictingOptions() const;

 signals:
  // One option's choice was changed by the person.
  void changed(const std::string& keyword, const tavrin::OptString& choice);
  // Any mark may be another one; sent after `changed` too.
  void refreshed();

 private:
  std::map<std::string, OptString> snapshot() const;
  void tellDifferences(const std::map<std::string, OptString>& before);

  ppd_file_t* file;
};

// Every option of the PPD with its group, in the order of the file.
struct PPDSection {
  std::string keyword;
  std::string title;
  std::vector<const ppd_option_t*> options;
};
std::vector<PPDSection> sectionsOf(const ppd_file_t& ppd);

// The choices of an option that a person can pick: each keyword once, without the one that only
// stands for a value of the person's own, unless that is what is marked.
std::vector<const ppd_choice_t*> pickableChoices(const ppd_option_t& option, ppd_file_t& ppd);

}  // namespace tavrin

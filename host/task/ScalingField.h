#pragma once

#include <string>
#include <vector>

#include "host/support/OptionList.h"

namespace tavrin {

inline constexpr int kMostPercent = 1000;  // that a page can be scaled to

// How large pages come out. The print system has several options for that, of which a job has one
// at most.
class ScalingField {
 public:
  enum class Way {
    automatic,   // smaller where a page does not fit
    fit,         // as large as fits on the paper
    fill,        // so large that nothing stays white
    actualSize,  // of the document, cut off where it does not fit
    percent,
    asGiven,  // by options that no control shows, and which stay as they were given
  };

  Way way() const { return chosen; }
  // From 1 to kMostPercent; 100 until there was another one.
  int percent() const { return percentage; }
  bool isByHand() const { return byHand; }

  // The person's choice; asGiven where nothing was given changes nothing.
  void setWay(Way way);
  // The same for "percent" with this number, or the nearest one that can be.
  void setPercent(int percent);

  // Takes what these options (see inFirstNames) ask for, unless the person has chosen. False where
  // a value cannot be meant; then it is as if the option were not there.
  bool suggest(const OptionList& options);
  // Whether there are options that stay as they were given.
  bool hasGiven() const;

  OptionList options() const;
  // The names of all options that it stands for.
  static const std::vector<std::string>& optionNames();

 private:
  bool take(const OptionList& options);

  Way chosen = Way::automatic;
  int percentage = 100;
  bool byHand = false;
  OptionList given;  // as suggested last
};

// The word of the option "print-scaling" for a way; empty for one that has none there.
std::string fitWord(ScalingField::Way way);

}  // namespace tavrin

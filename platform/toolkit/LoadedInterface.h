#pragma once

#include <string>
#include <vector>

namespace tavrin {

// The objects that were made from one interface file; they live as long as this does.
class LoadedInterface {
 public:
  virtual ~LoadedInterface() = default;

  // The owner goes away: from now on no action runs and no delegate is told. The windows close
  // without the owner's notice; a modal run of one of them ends.
  virtual void detach() = 0;

  // Every name on which file and owner disagree, one sentence each: an outlet for which there is no
  // object of the right kind, an action that nobody offers. Empty if they fit.
  virtual std::vector<std::string> problems() const = 0;
};

}  // namespace tavrin

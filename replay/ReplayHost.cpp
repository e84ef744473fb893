#include "replay/ReplayHost.h"

#include <iostream>

#include "replay/Quoted.h"

namespace tavrin {

ReplayHost::ReplayHost(const std::string& id, EventLog& log, PPDPtr printerPPD)
    : ppd(std::move(printerPPD)), panelHost(ppd.get(), &settings, &format) {
  panelHost.onWillChange = [id, &log](const std::string& key, const OptString& choice) {
    log.optionWillChange(id, key, choice);
  };
  panelHost.onResize = [id, &log] { log.viewDidResize(id); };
}

void ReplayHost::mark(const std::string& key, const std::string& choice) {
  if (markChoice(ppd.get(), key, choice)) return;
  std::cerr << "tavrin-replay: The PPD has no choice " << quoted(choice) << " of " << quoted(key)
            << "; nothing is marked.\n";
}

// libcups has no call for this: a mark is a flag of the choice and an entry in the PPD's list.
void ReplayHost::unmark(const std::string& key) {
  ppd_option_t* option = ppdFindOption(ppd.get(), key.c_str());
  for (int i = 0; option && i < option->num_choices; ++i) {
    option->choices[i].marked = 0;
    cupsArrayRemove(ppd->marked, &option->choices[i]);
  }
}

}  // namespace tavrin

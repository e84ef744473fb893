#include "replay/ReplayHost.h"

#include <iostream>

#include "host/printer/MarkedOptions.h"
#include "platform/text/Quoted.h"

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

void ReplayHost::unmark(const std::string& key) {
  ppd_option_t* option = ppdFindOption(ppd.get(), key.c_str());
  if (option) tavrin::unmark(*ppd, *option);
}

}  // namespace tavrin

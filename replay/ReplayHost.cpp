#include "replay/ReplayHost.h"

namespace tavrin {

bool ReplayHost::willChangePPDOptionKeyValue(const std::string& key, const OptString& ppdChoice) {
  log.optionWillChange(panel, key, ppdChoice);
  if (ppdChoice) mark(key, *ppdChoice);
  return true;
}

void ReplayHost::mark(const std::string& key, const std::string& choice) {
  ppd_option_t* option = ppdFindOption(ppd.get(), key.c_str());
  if (option && ppdFindChoice(option, choice.c_str()))
    ppdMarkOption(ppd.get(), key.c_str(), choice.c_str());
}

// libcups has no call for this: marks are a flag of the choice and an entry in the PPD's list.
void ReplayHost::unmark(const std::string& key) {
  ppd_option_t* option = ppdFindOption(ppd.get(), key.c_str());
  for (int i = 0; option && i < option->num_choices; ++i) {
    option->choices[i].marked = 0;
    cupsArrayRemove(ppd->marked, &option->choices[i]);
  }
}

void ReplayHost::setPaper(const OptString& ppdPaperName) { format.setPaper(ppdPaperName); }

void ReplayHost::setColumns(const OptString& columns) {
  settings.setValue(kPMLayoutColumns, columns);
}

}  // namespace tavrin

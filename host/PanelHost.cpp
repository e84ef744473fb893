#include "host/PanelHost.h"

#include <cups/ppd.h>

namespace tavrin {

bool markChoice(ppd_file_s* ppd, const std::string& key, const std::string& choice) {
  // Both keywords as the PPD spells them: libcups finds them in any letter case, but only marks by
  // the exact one are found again everywhere.
  ppd_option_t* option = ppd ? ppdFindOption(ppd, key.c_str()) : nullptr;
  const ppd_choice_t* known = option ? ppdFindChoice(option, choice.c_str()) : nullptr;
  if (!known) return false;
  ppdMarkOption(ppd, option->keyword, known->choice);
  return true;
}

PanelHost::PanelHost(ppd_file_s* printerPPD, const PMPrintSettings* jobSettings,
                     const PMPageFormat* jobFormat)
    : ppd(printerPPD), settings(jobSettings), format(jobFormat) {}

bool PanelHost::willChangePPDOptionKeyValue(const std::string& key, const OptString& ppdChoice) {
  handovers.push_back({key, ppdChoice});
  const bool marked = ppdChoice && markChoice(ppd, key, *ppdChoice);
  if (onWillChange) onWillChange(key, ppdChoice);
  return marked;
}

void PanelHost::panelViewDidResize() {
  if (onResize) onResize();
}

}  // namespace tavrin

#include "host/panels/PanelHost.h"

#include "host/printer/MarkedOptions.h"

namespace tavrin {

PanelHost::PanelHost(ppd_file_s* printerPPD, const PMPrintSettings* jobSettings,
                     const PMPageFormat* jobFormat)
    : ppd(printerPPD), settings(jobSettings), format(jobFormat) {}

bool PanelHost::willChangePPDOptionKeyValue(const std::string& key, const OptString& ppdChoice) {
  const bool marked = ppdChoice && markChoice(ppd, key, *ppdChoice);
  if (onWillChange) onWillChange(key, ppdChoice);
  return marked;
}

void PanelHost::panelViewDidResize() {
  if (onResize) onResize();
}

}  // namespace tavrin

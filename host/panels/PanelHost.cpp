#include "host/panels/PanelHost.h"

#include "host/printer/MarkedOptions.h"

namespace tavrin {

bool PanelHost::willChangePPDOptionKeyValue(const std::string& key, const OptString& ppdChoice) {
  const bool marked = ppdChoice && markChoice(ppd, key, *ppdChoice);
  if (onWillChange) onWillChange(key, ppdChoice);
  return marked;
}

void PanelHost::panelViewDidResize() {
  if (onResize) onResize();
}

}  // namespace tavrin

#pragma once

#include <functional>
#include <string>

#include "platform/contract/PrintDialogExtension.h"

// The dialog's side of the talk with a panel.

namespace tavrin {

// The host as one panel sees it. It keeps the PPD's marks in step with what the panel hands over
// and tells the dialog.
class PanelHost final : public PDEPlugInCallback {
 public:
  // Borrows all three for its life; each may be null.
  PanelHost(ppd_file_s* printerPPD, const PMPrintSettings* jobSettings,
            const PMPageFormat* jobFormat);

  // Called after the choice was marked, with what the panel handed over; may be empty.
  std::function<void(const std::string& key, const OptString& choice)> onWillChange;
  // Called when the panel's view has another size; may be empty.
  std::function<void()> onResize;

  ppd_file_s* ppdFile() override { return ppd; }
  const PMPrintSettings* printSettings() override { return settings; }
  const PMPageFormat* pageFormat() override { return format; }
  // Marks the choice; false where it marks nothing (an absent choice, an unknown option or choice).
  bool willChangePPDOptionKeyValue(const std::string& key, const OptString& ppdChoice) override;
  void panelViewDidResize() override;

 private:
  ppd_file_s* ppd;
  const PMPrintSettings* settings;
  const PMPageFormat* format;
};

}  // namespace tavrin

#pragma once

#include <functional>
#include <string>

#include "host/panels/HostPageFormat.h"
#include "host/panels/HostPrintSettings.h"
#include "platform/contract/PrintDialogExtension.h"

// The dialog's side of the talk with a panel.

namespace tavrin {

// The host as its panels see it: a printer's PPD and a job. It keeps the PPD's marks in step with
// what a panel hands over and tells the dialog.
class PanelHost final : public PDEPlugInCallback {
 public:
  // Borrows the PPD for its life; null for a printer without one. The job has no settings and no
  // paper at first.
  explicit PanelHost(ppd_file_s* printerPPD) : ppd(printerPPD) {}

  // Called after the choice was marked, with what the panel handed over; may be empty.
  std::function<void(const std::string& key, const OptString& choice)> onWillChange;
  // Called when the panel's view has another size; may be empty.
  std::function<void()> onResize;

  ppd_file_s* ppdFile() override { return ppd; }
  // The job, for the dialog to change; never null.
  HostPrintSettings* printSettings() override { return &settings; }
  HostPageFormat* pageFormat() override { return &format; }
  // Marks the choice; false where it marks nothing (an absent choice, an unknown option or choice).
  bool willChangePPDOptionKeyValue(const std::string& key, const OptString& ppdChoice) override;
  void panelViewDidResize() override;

 private:
  ppd_file_s* ppd;
  HostPrintSettings settings;
  HostPageFormat format;
};

}  // namespace tavrin

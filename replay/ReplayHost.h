#pragma once

#include <string>

#include "host/HostJob.h"
#include "platform/PrintDialogExtension.h"
#include "ppd/CupsHandles.h"
#include "replay/EventLog.h"

namespace tavrin {

// The Print dialog as a panel sees it: a printer's PPD, a job's settings and paper, and somebody
// who writes down what the panel tells it.
class ReplayHost : public PDEPlugInCallback {
 public:
  // Takes the PPD, which may be null.
  ReplayHost(std::string id, EventLog& eventLog, PPDPtr printerPPD)
      : panel(std::move(id)), log(eventLog), ppd(std::move(printerPPD)) {}

  ppd_file_s* ppdFile() override { return ppd.get(); }
  const PMPrintSettings* printSettings() override { return &settings; }
  const PMPageFormat* pageFormat() override { return &format; }
  // Marks the choice in the PPD; an absent or unknown one marks nothing.
  bool willChangePPDOptionKeyValue(const std::string& key, const OptString& ppdChoice) override;
  void panelViewDidResize() override { log.viewDidResize(panel); }

  // Marks a choice, telling nobody. An option or choice that the PPD lacks marks nothing.
  void mark(const std::string& key, const std::string& choice);
  // Takes the option's mark away, telling nobody.
  void unmark(const std::string& key);
  void setPaper(const OptString& ppdPaperName);
  void setColumns(const OptString& columns);

 private:
  std::string panel;
  EventLog& log;
  PPDPtr ppd;
  HostPrintSettings settings;
  HostPageFormat format;
};

}  // namespace tavrin

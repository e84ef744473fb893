#pragma once

#include <string>

#include "host/panels/HostJob.h"
#include "host/panels/PanelHost.h"
#include "ppd/CupsHandles.h"
#include "replay/EventLog.h"

namespace tavrin {

// The Print dialog behind one panel: a printer's PPD with its marks, a job's settings and paper,
// and somebody who writes down what the panel tells the dialog.
class ReplayHost {
 public:
  // The id is the panel's, for the log. Takes the PPD, which may be null.
  ReplayHost(const std::string& id, EventLog& log, PPDPtr printerPPD);
  ReplayHost(const ReplayHost&) = delete;
  ReplayHost& operator=(const ReplayHost&) = delete;

  // What the panel talks to.
  PDEPlugInCallback& callback() { return panelHost; }

  // Every option's default choice becomes the marked one.
  void markDefaults() { ppdMarkDefaults(ppd.get()); }
  // Marks a choice, telling nobody. An option or choice that the PPD lacks marks
  // nothing and is named on standard error: it is no mistake of the dialog's, but perhaps the
  // script's.
  void mark(const std::string& key, const std::string& choice);
  // Takes the option's mark away, telling nobody.
  void unmark(const std::string& key);

  // Null takes the paper, or the layout-columns setting, away.
  void setPaper(const OptString& ppdPaperName) { format.setPaper(ppdPaperName); }
  void setColumns(const OptString& columns) { settings.setValue(kPMLayoutColumns, columns); }

 private:
  PPDPtr ppd;
  HostPrintSettings settings;
  HostPageFormat format;
  PanelHost panelHost;
};

}  // namespace tavrin

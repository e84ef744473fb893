#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include <QObject>

#include "host/panels/PanelHost.h"
#include "host/panels/PlugInLoader.h"
#include "host/printer/PPDMarks.h"
#include "host/support/OptionList.h"
#include "platform/contract/PrintDialogExtension.h"

namespace tavrin {

// A printer while it is the selected one: its PPD with the marks, the job as a panel sees it, and
// the panels of the plug-in that the PPD names. It keeps all of them in step.
class PrinterSession : public QObject {
  Q_OBJECT

 public:
  // Nothing is marked and no panel is there yet.
  explicit PrinterSession(SharedPPD ppd);
  ~PrinterSession() override;

  PPDMarks& marks() { return ppdMarks; }
  ppd_file_t& ppd() const { return *file; }
  const SharedPPD& sharedPPD() const { return file; }

  // Loads the plug-in that the PPD names and gets its panels; nothing where it names none. The
  // sentence says why a plug-in that it names is not there; empty when all went well.
  std::string loadPanels();
  // Takes the panels of this plug-in.
  std::string addPanels(LoadedPlugIn plugIn);

  const PDEPanels& panels() const { return ownPanels; }
  // The keywords of the options that the panels show.
  std::set<std::string> claimedKeywords() const;

  // Goes back to the PPD's defaults with these options over them, and has the panels take them.
  // One sentence for each option that names a choice which the printer does not have.
  // In the options with these keywords nothing is marked at all.
  std::vector<std::string> markAnew(const OptionList& options,
                                    const std::vector<std::string>& unmarked = {});

  // The layout that the panels see.
  void setPagesPerSheet(int pages);

  // Has the panels hand over their choices, all of them before anybody is told of new marks; a
  // sentence when one could not.
  [[nodiscard]] std::string takePanelChoices();

 signals:
  void panelResized();

 private:
  std::string restorePanels();
  std::string savePanels();
  void followPaper();
  void tellPanels(const std::string& keyword, const OptString& choice);

  SharedPPD file;
  PPDMarks ppdMarks;
  PanelHost host;
  bool isTakingChoices = false;
  LoadedPlugIn loaded;
  PDEPanels ownPanels;  // released before what they were given
};

}  // namespace tavrin

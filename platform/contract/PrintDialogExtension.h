#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/contract/PrintJob.h"
#include "platform/text/OptionalString.h"
#include "platform/toolkit/Toolkit.h"

// The protocol between a Print dialog (the host) and a plug-in that adds panels to it. Everything
// is called on the user-interface thread.

struct ppd_file_s;  // libcups' parsed PPD, ppd_file_t

namespace tavrin {

class Bundle;

// The panel type that a host asks for when it wants panels of the Print dialog.
inline constexpr char kPrintDialogPanelType[] = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

// What a panel may ask of the host. Everything that it hands out is the host's, and valid for the
// panel's life.
class PDEPlugInCallback {
 public:
  virtual ~PDEPlugInCallback() = default;

  // The parsed PPD of the selected printer; null if it has none.
  virtual ppd_file_s* ppdFile() = 0;
  // The job's print settings and page format; null if the host has none.
  virtual const PMPrintSettings* printSettings() = 0;
  virtual const PMPageFormat* pageFormat() = 0;

  // Makes the choice (a choice keyword) the job's choice for a PPD main keyword. An absent choice
  // is passed on as the panel has it; the host decides what it means.
  virtual bool willChangePPDOptionKeyValue(const std::string& key, const OptString& ppdChoice) = 0;

  // The size of the panel's view has changed; the host lays itself out around it.
  virtual void panelViewDidResize() = 0;
};

// One panel of the Print dialog. Released by the host that got it, before the callback and the PPD
// go away.
class PDEPanel {
 public:
  virtual ~PDEPanel() = default;

  virtual std::string panelKind() = 0;
  virtual std::string panelName() = 0;
  // The panel's view, made on first request; null when it cannot be made. The host shares it.
  virtual std::shared_ptr<View> panelView() = 0;
  // The panel is about to become visible.
  virtual void willShow() = 0;
  // Whether the panel agrees to be hidden.
  virtual bool shouldHide() = 0;
  // Hands the panel's choices to the host. An error text is written only when the answer is false.
  virtual bool saveValuesAndReturnError(std::string* error) = 0;
  // Takes the choices that are marked in the PPD.
  virtual bool restoreValuesAndReturnError(std::string* error) = 0;
  // The PPD main keywords that the panel shows; the host omits them from its own panes.
  virtual std::vector<std::string> supportedPPDOptionKeys() = 0;
  // A choice has been changed elsewhere in the dialog.
  virtual void PPDOptionKeyValueDidChange(const OptString& key, const OptString& ppdChoice) = 0;
  // Lines for the dialog's summary: label to value.
  virtual std::map<std::string, OptString> summaryInfo() = 0;
  // False if the panel has shown its own help, true if the dialog should show the dialog's.
  virtual bool shouldShowHelp() = 0;
};

using PDEPanels = std::vector<std::unique_ptr<PDEPanel>>;

// A plug-in's principal object: the one that a host makes when it loads the bundle.
class PDEPlugIn {
 public:
  virtual ~PDEPlugIn() = default;

  // Tells the plug-in its bundle (may be null); false if it cannot work.
  virtual bool initWithBundle(const Bundle* bundle) = 0;

  // New panels of a panel type, each talking to that host; absent if there are none. The host owns
  // them and outlives them.
  virtual std::optional<PDEPanels> PDEPanelsForType(const std::string& type,
                                                    PDEPlugInCallback* withHostInfo) = 0;
};

// The binary contract with a module. Host and module must be built against the same number; it
// grows with every change to a class above, in PrintJob.h or in the toolkit.
inline constexpr unsigned kPDEInterfaceVersion = 1;

enum class PDEModuleAnswer : int {
  made,            // the principal object was made and is the caller's
  otherInterface,  // the module was built against another interface version
  unknownClass,    // the module has no principal class of that name
};

// A module exports one function with this type under kPDEModuleEntryPoint. It takes the host's
// interface version, the principal class that the bundle's Info.plist names, where to write the
// object (only when the answer is `made`), and where to write the module's own interface version
// (always).
using PDEModuleEntryPoint = PDEModuleAnswer(unsigned hostInterface, const char* principalClass,
                                            PDEPlugIn** plugIn, unsigned* moduleInterface);
inline constexpr char kPDEModuleEntryPoint[] = "tavrinPDEPrincipalObject";

}  // namespace tavrin

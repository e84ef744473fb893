#pragma once

#include "platform/contract/PrintDialogExtension.h"

namespace tavrin {

// The plug-in's principal object: answers a request for panels of the Print dialog with one new
// panel, and any other request with nothing.
class TavrinPDEPlugin final : public PDEPlugIn {
 public:
  // Always true; the bundle is neither kept nor used.
  bool initWithBundle(const Bundle* bundle) override;

  // The type is compared to the letter.
  std::optional<PDEPanels> PDEPanelsForType(const std::string& type,
                                            PDEPlugInCallback* withHostInfo) override;
};

}  // namespace tavrin

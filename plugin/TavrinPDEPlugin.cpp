#include "plugin/TavrinPDEPlugin.h"

#include "plugin/MainPDE.h"

namespace tavrin {

bool TavrinPDEPlugin::initWithBundle(const Bundle*) { return true; }

std::optional<PDEPanels> TavrinPDEPlugin::PDEPanelsForType(const std::string& type,
                                                           PDEPlugInCallback* withHostInfo) {
  if (type != kPrintDialogPanelType) return std::nullopt;
  auto panel = MainPDE::initWithCallback(withHostInfo);
  if (!panel) return std::nullopt;
  PDEPanels panels;
  panels.push_back(std::move(panel));
  return panels;
}

}  // namespace tavrin

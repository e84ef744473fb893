#include "platform/contract/PrintDialogExtension.h"

// The least that a plug-in has to write.

namespace {

class OutsidePlugIn final : public tavrin::PDEPlugIn {
 public:
  bool initWithBundle(const tavrin::Bundle*) override { return true; }
  std::optional<tavrin::PDEPanels> PDEPanelsForType(const std::string&,
                                                    tavrin::PDEPlugInCallback*) override {
    return std::nullopt;
  }
};

}  // namespace

extern "C" tavrin::PDEModuleAnswer tavrinPDEPrincipalObject(unsigned, const char*,
                                                            tavrin::PDEPlugIn** plugIn,
                                                            unsigned* moduleInterface) {
  *moduleInterface = tavrin::kPDEInterfaceVersion;
  *plugIn = std::make_unique<OutsidePlugIn>().release();
  return tavrin::PDEModuleAnswer::made;
}

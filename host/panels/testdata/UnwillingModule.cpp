// A plug-in that cannot work, and a module that claims to have made what it did not make.

#include <cstring>

#include "platform/contract/PrintDialogExtension.h"

using namespace tavrin;

namespace {

class UnwillingPlugIn final : public PDEPlugIn {
 public:
  bool initWithBundle(const Bundle*) override { return false; }
  std::optional<PDEPanels> PDEPanelsForType(const std::string&, PDEPlugInCallback*) override {
    return std::nullopt;
  }
};

}  // namespace

extern "C" PDEModuleAnswer tavrinPDEPrincipalObject(unsigned, const char* principalClass,
                                                    PDEPlugIn** plugIn, unsigned* version) {
  *version = kPDEInterfaceVersion;
  if (std::strcmp(principalClass, "NeverMade") != 0)
    *plugIn = std::make_unique<UnwillingPlugIn>().release();
  return PDEModuleAnswer::made;
}

// A plug-in without panels that does all that a host asks for.

#include <cstring>

#include "platform/contract/PrintDialogExtension.h"

using namespace tavrin;

namespace {

class SoundPlugIn final : public PDEPlugIn {
 public:
  bool initWithBundle(const Bundle* bundle) override { return bundle != nullptr; }
  std::optional<PDEPanels> PDEPanelsForType(const std::string&, PDEPlugInCallback*) override {
    return std::nullopt;
  }
};

}  // namespace

extern "C" PDEModuleAnswer tavrinPDEPrincipalObject(unsigned, const char* principalClass,
                                                    PDEPlugIn** plugIn, unsigned* version) {
  *version = kPDEInterfaceVersion;
  if (std::strcmp(principalClass, "SoundPlugIn") != 0) return PDEModuleAnswer::unknownClass;
  *plugIn = std::make_unique<SoundPlugIn>().release();
  return PDEModuleAnswer::made;
}

#include <cstring>

#include "platform/contract/PrintDialogExtension.h"
#include "plugin/TavrinPDEPlugin.h"

// The one function that the module exports.

extern "C" __attribute__((visibility("default"))) tavrin::PDEModuleAnswer tavrinPDEPrincipalObject(
    unsigned hostInterface, const char* principalClass, tavrin::PDEPlugIn** plugIn,
    unsigned* moduleInterface) {
  using namespace tavrin;
  *moduleInterface = kPDEInterfaceVersion;
  if (hostInterface != kPDEInterfaceVersion) return PDEModuleAnswer::otherInterface;
  if (std::strcmp(principalClass, "TavrinPDEPlugin") != 0) return PDEModuleAnswer::unknownClass;
  *plugIn = std::make_unique<TavrinPDEPlugin>().release();  // the host owns it from here on
  return PDEModuleAnswer::made;
}

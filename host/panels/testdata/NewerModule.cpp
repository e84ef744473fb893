// A module that was built against a later interface.

#include "platform/contract/PrintDialogExtension.h"

using namespace tavrin;

extern "C" PDEModuleAnswer tavrinPDEPrincipalObject(unsigned, const char*, PDEPlugIn**,
                                                    unsigned* version) {
  *version = kPDEInterfaceVersion + 1;
  return PDEModuleAnswer::otherInterface;
}

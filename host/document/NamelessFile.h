#pragma once

#include "platform/files/FileDescriptor.h"

namespace tavrin {

// A new file in the temporary folder of the environment (TMPDIR, else /tmp), to be written and
// read. It has no name, so that it is gone when it is closed, however the program ends. False where
// it cannot be made.
FileDescriptor namelessFile();

}  // namespace tavrin

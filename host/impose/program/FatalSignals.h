#pragma once

namespace tavrin {

// Has the program end as for any damaged document when a library comes to grief with one: nested a
// hundred thousand levels deep, it takes more stack than there is; cut short while it is read,
// there is nothing behind its addresses.
void endWellOnFatalSignals();

}  // namespace tavrin

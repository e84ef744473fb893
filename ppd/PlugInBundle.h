#pragma once

#include "platform/files/Bundle.h"

namespace tavrin {

// The bundle that the plug-in's code was loaded from; its strings table and interface files are
// the panel's. The empty bundle when the code runs outside a bundle.
const Bundle& plugInBundle();

// Puts another bundle in its place: for code that is linked into a program instead of loaded.
void setPlugInBundle(Bundle bundle);

// The text for a key in the user's language, from that bundle; the key where there is none.
inline std::string localized(const std::string& key) { return plugInBundle().localizedString(key); }

}  // namespace tavrin

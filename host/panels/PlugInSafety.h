#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <unistd.h>

// Whether somebody else could make this program run code of theirs through a plug-in's bundle.

namespace tavrin {

// A bundle with more files, folders and links than this is not looked through.
inline constexpr std::size_t kMostPlacesInBundle = 10'000;

// Why the bundle, given by its absolute path without links, is not safe to load, as a sentence that
// names the place and the way out; empty when it is safe. It is safe when every file, folder and
// link in it, whatever the links lead to, and every folder above any of these belongs to root or
// the user, and neither a group nor others can write to it. A sticky folder above may be open to
// all: nobody can exchange there what root or the user owns.
std::string dangerIn(const std::filesystem::path& bundle, uid_t user = geteuid());

}  // namespace tavrin

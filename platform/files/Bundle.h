#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/files/PropertyList.h"
#include "platform/text/OptionalString.h"

namespace tavrin {

// A bundle: a folder with Contents/Info.plist, Contents/Linux/<module> and Contents/Resources.
// Whatever is missing or damaged in it is simply absent. Cheap enough to copy.
class Bundle {
 public:
  // The empty bundle: it has no information, and every text is its own key.
  Bundle() = default;

  // Opens the bundle at a folder; the empty bundle for the empty path, which names nothing. Always
  // succeeds; infoDictionary() tells whether there is a bundle.
  static Bundle atPath(std::filesystem::path folder);

  // The bundle whose module holds this address of code or static data; the empty bundle if that is
  // not in a bundle.
  static Bundle forCode(const void* address);

  const std::filesystem::path& path() const { return folder; }

  // The information dictionary; null if there is none.
  const PropertyList* infoDictionary() const;
  // A text of the information dictionary.
  OptString info(const std::string& key) const;

  // The text for a key from the bundle's default strings table in the user's language; the key
  // itself if there is no translation.
  std::string localizedString(const std::string& key) const;

  // A file below Contents/Resources, first in the user's language ("de.lproj/<name>"), then
  // language-neutral; absent if there is none. The name must be a plain file name.
  std::optional<std::filesystem::path> resource(const std::string& name) const;

 private:
  std::filesystem::path folder;
  std::optional<PropertyList> information;
  std::map<std::string, std::string> strings;  // the user's language over its fallbacks
};

// The user's languages for looking up resources, most wanted first, each followed by its less
// specific forms: for LC_ALL=pt_BR.UTF-8 these are pt_BR and pt. Taken from LC_ALL, LC_MESSAGES,
// LANG and LANGUAGE as gettext does; empty for the C and POSIX locales, whatever their encoding.
// The list ends where English comes, the language of the keys and of the neutral resources: no
// language that the user wants less may come before them.
std::vector<std::string> userLanguages();

}  // namespace tavrin

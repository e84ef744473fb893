#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/text/OptionalString.h"

namespace tavrin {

// A value read from a property list, XML or binary: a text, a dictionary, or something else that no
// reader of this program asks for. A plain value; copies are deep.
class PropertyList {
 public:
  using Dictionary = std::map<std::string, PropertyList>;

  // Something else: a number, an array, a date, data...
  PropertyList() = default;
  explicit PropertyList(std::string text) : content(std::move(text)) {}
  explicit PropertyList(Dictionary dictionary) : content(std::move(dictionary)) {}

  // The text; absent if this is something else.
  OptString string() const;
  // The text that a path of keys leads to; absent if a step is missing or the end is not a text.
  OptString stringAt(const std::vector<std::string>& keys) const;
  // The whole dictionary; null if this is something else.
  const Dictionary* dictionary() const;

 private:
  // The entry of a dictionary; null if there is none.
  const PropertyList* entry(const std::string& key) const;

  std::variant<std::monostate, std::string, Dictionary> content;
};

// Larger files are refused.
inline constexpr std::size_t kPropertyListSizeLimit = 1024 * 1024;

// Reads a property-list file. Absent for a file that is missing, unreadable, not a regular file,
// too large or not a sound property list, and for one that is built to exhaust its reader (deep
// nesting, shared or circular references, entities, colliding keys). Never blocks. The last of two
// equal keys wins; a text that is not UTF-8 counts as something else, and an entry with such a key
// is left out.
std::optional<PropertyList> readPropertyList(const std::filesystem::path& file);

// The same for bytes in memory.
std::optional<PropertyList> parsePropertyList(const std::string& bytes);

}  // namespace tavrin

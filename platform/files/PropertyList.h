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

// A value read from a property list, XML or binary: a text, a dictionary, an array, or something
// else that no reader of this program asks for. A plain value; copies are deep.
class PropertyList {
 public:
  using Dictionary = std::map<std::string, PropertyList>;
  using Array = std::vector<PropertyList>;

  // A list of no interest (a number, a date, data...).
  PropertyList() = default;
  explicit PropertyList(std::string text) : content(std::move(text)) {}
  explicit PropertyList(Dictionary dictionary) : content(std::move(dictionary)) {}
  explicit PropertyList(Array array) : content(std::move(array)) {}

  // The text, or absent when this is something else.
  OptString string() const;
  // The entry of a dictionary; null when this is no dictionary or has no such entry.
  const PropertyList* entry(const std::string& key) const;
  // The text that a path of keys leads to; absent when any step is missing or no text.
  OptString stringAt(const std::vector<std::string>& keys) const;
  // The whole dictionary; null when this is something else.
  const Dictionary* dictionary() const;

 private:
  std::variant<std::monostate, std::string, Dictionary, Array> content;
};

// Larger files are refused.
inline constexpr std::size_t kPropertyListSizeLimit = 1024 * 1024;

// Reads a property-list file. Absent for a file that is missing, unreadable, no regular file, too
// large, or not a sound property list, and for one that is built to exhaust its reader (deep
// nesting, shared or circular references, entities, colliding keys). Never blocks. The last of two
// equal keys wins; a text that is not UTF-8 is something else, an entry with such a key is left
// out.
std::optional<PropertyList> readPropertyList(const std::filesystem::path& file);

// The same for bytes in memory.
std::optional<PropertyList> parsePropertyList(const std::string& bytes);

}  // namespace tavrin

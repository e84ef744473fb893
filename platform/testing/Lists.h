#pragma once

#include <cstddef>
#include <string>
#include <vector>

// Property lists for tests, sound and hostile ones.

namespace tavrin::test {

// The text so many times.
std::string repeated(const std::string& text, std::size_t times);

// An XML list with the usual head around a value.
std::string xmlList(const std::string& value);
// The entry of an XML dictionary.
std::string xmlEntry(const std::string& key, const std::string& text);

// Objects of a binary list as they are in the file; references are single bytes, and counts are
// below 15.
std::string binaryText(const std::string& text);
std::string binaryArray(const std::vector<int>& items);
std::string binaryDictionary(const std::vector<int>& keysThenValues);
// The list of these objects, the first one at its top; offsets take two bytes, or four.
std::string binaryList(const std::vector<std::string>& objects, std::size_t offsetSize = 2);

// A list that costs an unguarded reader time, memory or its stack, or is simply unsound.
struct HostileList {
  std::string name;
  std::string bytes;
};
std::vector<HostileList> hostileLists();
// Lists as large and as costly as they may be; those are read.
std::vector<HostileList> largeLists();

}  // namespace tavrin::test

#include "platform/testing/Lists.h"

#include <cstdint>
#include <numeric>

#include "platform/PropertyList.h"

namespace tavrin::test {
namespace {

std::string bigEndian(std::uint64_t value, std::size_t size) {
  std::string bytes;
  while (size-- > 0) bytes += static_cast<char>(value >> (8 * size) & 0xFF);
  return bytes;
}

std::string references(const std::vector<int>& objects) {
  std::string bytes;
  for (const int object : objects) bytes += static_cast<char>(object);
  return bytes;
}

std::string marker(unsigned kind, std::size_t count) {
  return {static_cast<char>(kind << 4 | count)};
}

// Every array has the next one twice: 2 to the power of the levels when written out.
std::string sharedReferences(int levels) {
  std::vector<std::string> objects;
  for (int i = 1; i < levels; ++i) objects.push_back(binaryArray({i, i}));
  objects.push_back(binaryText("x"));
  return binaryList(objects);
}

std::string deepBinary(int levels, int sharing = 0) {
  std::vector<std::string> objects;
  for (int i = 1; i < levels; ++i) {
    objects.push_back(binaryArray(i < levels - sharing ? std::vector{i} : std::vector{i, i}));
  }
  objects.push_back(binaryText("x"));
  return binaryList(objects);
}

// One long text at each of many places.
std::string sharedText() {
  const std::string text =
      "\x6F\x12" + bigEndian(200'000, 4) + repeated(std::string("\0A", 2), 200'000);
  return binaryList(
      {binaryArray(std::vector<int>(14, 1)), binaryArray(std::vector<int>(14, 2)), text}, 4);
}

// Entries with keys that share a value in the 33-times hash: a hash table becomes a list.
std::string collidingKeys(int count) {
  std::string entries;
  for (int i = 0; i < count; ++i) {
    std::string key;
    for (int bit = 0; bit < 14; ++bit) key += (i >> bit & 1) != 0 ? "bA" : "ab";
    entries += "<key>" + key + "</key><true/>";
  }
  return "<dict>" + entries + "</dict>";
}

// So many units that the list is as large as a list may be.
std::string largest(const std::string& before, const std::string& unit, const std::string& after) {
  const std::size_t taken = xmlList(before + after).size();
  return xmlList(before + repeated(unit, (kPropertyListSizeLimit - taken) / unit.size()) + after);
}

std::string manyKeys(int dictionaries, int keys) {
  std::string entries;
  for (int i = 0; i < keys; ++i) entries += xmlEntry("k" + std::to_string(i), "");
  return xmlList("<array>" + repeated("<dict>" + entries + "</dict>", dictionaries) + "</array>");
}

std::string entityBomb() {
  return "<?xml version=\"1.0\"?><!DOCTYPE plist [<!ENTITY a \"aaaaaaaaaa\">"
         "<!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\"><!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;\">]>"
         "<plist version=\"1.0\"><string>&c;</string></plist>";
}

}  // namespace

std::string repeated(const std::string& text, std::size_t times) {
  std::string all;
  all.reserve(text.size() * times);
  while (times-- > 0) all += text;
  return all;
}

std::string xmlList(const std::string& value) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
         "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
         "<plist version=\"1.0\">" +
         value + "</plist>\n";
}

std::string xmlEntry(const std::string& key, const std::string& text) {
  return "<key>" + key + "</key><string>" + text + "</string>";
}

std::string binaryText(const std::string& text) { return marker(5, text.size()) + text; }

std::string binaryArray(const std::vector<int>& items) {
  return marker(10, items.size()) + references(items);
}

std::string binaryDictionary(const std::vector<int>& keysThenValues) {
  return marker(13, keysThenValues.size() / 2) + references(keysThenValues);
}

std::string binaryList(const std::vector<std::string>& objects, std::size_t offsetSize) {
  std::string list = "bplist00";
  std::string offsets;
  for (const std::string& object : objects) {
    offsets += bigEndian(list.size(), offsetSize);
    list += object;
  }
  const std::size_t table = list.size();
  return list + offsets + std::string(6, '\0') + bigEndian(offsetSize, 1) + bigEndian(1, 1) +
         bigEndian(objects.size(), 8) + bigEndian(0, 8) + bigEndian(table, 8);
}

std::vector<HostileList> hostileLists() {
  return {
      {"empty", ""},
      {"OpenStep", "{ Model = { Current = x; }; }"},
      {"JSON", R"({"Model": {"Current": "x"}})"},
      {"XML entity bomb", entityBomb()},
      {"XML without end", xmlList("<dict>")},
      {"XML nested 100 deep", xmlList(repeated("<array>", 100) + repeated("</array>", 100))},
      {"XML nested 60,000 deep",
       xmlList(repeated("<array>", 60'000) + repeated("</array>", 60'000))},
      {"XML nested in quotes", xmlList(repeated("<array x=\"></array>\">", 40'000))},
      {"XML references", largest("<string>", "&lt;", "</string>")},
      {"XML references in a comment's disguise",
       largest("<string x=\"><!--\">", "&lt;", "<!-- --></string>")},
      {"XML elements", largest("<array>", "<true/>", "</array>")},
      {"XML colliding keys", xmlList(collidingKeys(16'000))},
      {"XML colliding keys, fewer", xmlList(collidingKeys(2'000))},
      {"XML keys", largest("<dict>", "<key>a</key><true/>", "</dict>")},
      {"too large", largest("<string>", "x", "</string>") + "  "},
      {"binary shared references", sharedReferences(24)},
      {"binary shared text", sharedText()},
      {"binary nested 100 deep", deepBinary(100)},
      {"binary cycle of one", binaryList({binaryArray({0})})},
      {"binary cycle of two", binaryList({binaryArray({1, 1, 1}), binaryArray({0, 0})})},
      {"binary dictionary in itself", binaryList({binaryDictionary({1, 0}), binaryText("k")})},
      {"binary NUL in a key",
       binaryList({binaryDictionary({1, 1}), std::string("\x63\0a\0\0\0b", 7)})},
      {"binary NUL in a text", binaryList({binaryText(std::string("a\0b", 3))})},
      {"binary key that is no text", binaryList({binaryDictionary({1, 1}), binaryArray({})})},
      {"binary reference to nothing", binaryList({binaryArray({7})})},
      {"binary text past its end", binaryList({marker(5, 14) + "short"})},
      {"binary array past its end", binaryList({marker(10, 14)})},
      {"binary count past 64 bits", binaryList({"\x5F\x13" + bigEndian(~0ULL, 8) + "x"})},
      {"binary count of 16 bytes", binaryList({"\x5F\x14" + std::string(16, '\xFF') + "x"})},
      {"binary array of all there is", binaryList({"\xAF\x13" + bigEndian(1ULL << 63, 8)})},
      {"binary UTF-16 of all there is", binaryList({"\x6F\x13" + bigEndian(1ULL << 63, 8)})},
      {"binary unknown kind", binaryList({"\x70"})},
      {"binary trailer alone", "bplist00" + std::string(32, '\0')},
      {"binary trailer of ones", "bplist00" + std::string(32, '\xFF')},
      {"binary mark alone", "bplist00"},
  };
}

std::vector<HostileList> largeLists() {
  const std::string model = "<dict><key>Current</key><dict><key>Cart1</key><dict>" +
                            xmlEntry("CartName", "Any") + "</dict><key>Cart2</key><dict>" +
                            xmlEntry("CartName", "Photo Standard") + "</dict></dict></dict>";
  return {
      {"XML text", largest("<string>", "x", "</string>")},
      {"XML comments", xmlList("<string>x" + repeated("<!--x-->", 60'000) + "</string>")},
      {"XML models", largest("<array>", model, "</array>")},
      {"XML colliding keys", xmlList(collidingKeys(1'700))},
      {"XML elements", xmlList("<array>" + repeated("<dict/>", 59'000) + "</array>")},
      {"XML dictionaries", manyKeys(12, 499)},
      {"XML references", xmlList("<string>" + repeated("&#65;", 7'000) + "</string>")},
      {"XML everything at once",
       xmlList("<array><string>" + repeated("&#65;", 7'000) + "</string>" + collidingKeys(1'700) +
               repeated("<array/>", 56'000) + "</array>")},
      {"binary shared references", sharedReferences(14)},
      {"binary shared references far below", deepBinary(31, 13)},
  };
}

}  // namespace tavrin::test

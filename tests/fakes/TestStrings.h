#pragma once

#include <map>
#include <string>

#include "platform/testing/Environment.h"
#include "platform/testing/TemporaryFolder.h"
#include "ppd/PlugInBundle.h"

// Gives the panel a strings table for its life.

namespace tavrin {

using Translations = std::map<std::string, std::string>;

class TestStrings {
 public:
  explicit TestStrings(const Translations& translations) : before(plugInBundle()) {
    folder.write("Contents/Resources/de.lproj/Localizable.strings", table(translations));
    const test::LocaleEnvironment german{{"LC_ALL", "de_DE.UTF-8"}};
    setPlugInBundle(Bundle::atPath(folder.path()));
  }
  ~TestStrings() { setPlugInBundle(before); }
  TestStrings(const TestStrings&) = delete;
  TestStrings& operator=(const TestStrings&) = delete;

 private:
  static std::string escaped(const std::string& text) {
    std::string xml;
    for (const char c : text) {
      xml += c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '&' ? "&amp;" : std::string(1, c);
    }
    return xml;
  }
  static std::string table(const Translations& translations) {
    std::string entries;
    for (const auto& [key, text] : translations) {
      entries += "<key>" + escaped(key) + "</key><string>" + escaped(text) + "</string>\n";
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>\n" + entries +
           "</dict></plist>\n";
  }

  Bundle before;
  test::TemporaryFolder folder;
};

}  // namespace tavrin

#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "ppd/PlugInBundle.h"

// Gives the panel a strings table for its life.

namespace tavrin {

using Translations = std::map<std::string, std::string>;

class TestStrings {
 public:
  explicit TestStrings(const Translations& translations) : before(plugInBundle()) {
    std::string pattern = (std::filesystem::temp_directory_path() / "tavrin-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    folder = pattern;
    const std::filesystem::path table = folder / "Contents/Resources/de.lproj";
    std::filesystem::create_directories(table);
    write(table / "Localizable.strings", translations);
    setenv("LC_ALL", "de_DE.UTF-8", 1);
    unsetenv("LANGUAGE");
    setPlugInBundle(Bundle::atPath(folder));
    unsetenv("LC_ALL");
  }
  ~TestStrings() {
    setPlugInBundle(before);
    std::filesystem::remove_all(folder);
  }
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
  static void write(const std::filesystem::path& file, const Translations& translations) {
    std::ofstream out(file);
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>\n";
    for (const auto& [key, text] : translations) {
      out << "<key>" << escaped(key) << "</key><string>" << escaped(text) << "</string>\n";
    }
    out << "</dict></plist>\n";
  }

  Bundle before;
  std::filesystem::path folder;
};

}  // namespace tavrin

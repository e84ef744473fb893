#pragma once

#include <filesystem>
#include <string>

#include "platform/OptionalString.h"
#include "platform/RootFolder.h"
#include "platform/testing/TemporaryFolder.h"

// A printer installation in a folder of its own: while it lives, "/Library/Printers/..." is looked
// up below it.

namespace tavrin {

class PrinterRoot {
 public:
  PrinterRoot() {
    std::filesystem::create_directories(preferences());
    setRootFolder(folder.path());
  }
  ~PrinterRoot() { setRootFolder({}); }
  PrinterRoot(const PrinterRoot&) = delete;
  PrinterRoot& operator=(const PrinterRoot&) = delete;

  std::filesystem::path file(const std::string& absolutePath) const {
    return folder.path() / std::filesystem::path(absolutePath).relative_path();
  }
  std::filesystem::path preferencesFile(const std::string& modelYear) const {
    return preferences() / ("com.tavrin.prefs." + modelYear + ".plist");
  }

  // What the maker's utility writes down; a slot without a name has no "CartName".
  void installCartridges(const std::string& modelYear, const std::string& model,
                         const OptString& first, const OptString& second) const {
    const auto slot = [](const char* key, const OptString& name) {
      return "<key>" + std::string(key) + "</key><dict>" +
             (name ? "<key>CartName</key><string>" + *name + "</string>" : "") + "</dict>";
    };
    writePreferences(modelYear, "<dict><key>" + model + "</key><dict><key>Current</key><dict>" +
                                    slot("Cart1", first) + slot("Cart2", second) +
                                    "</dict></dict></dict>");
  }

  void writePreferences(const std::string& modelYear, const std::string& content) const {
    folder.write(preferencesFile(modelYear),
                 "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + content +
                     "</plist>\n");
  }

  void removePreferences(const std::string& modelYear) const {
    std::filesystem::remove(preferencesFile(modelYear));
  }

 private:
  std::filesystem::path preferences() const {
    return folder.path() / "Library/Printers/Tavrin/Preferences";
  }

  test::TemporaryFolder folder;
};

}  // namespace tavrin

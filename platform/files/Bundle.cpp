#include "platform/files/Bundle.h"

#include <algorithm>
#include <cstdlib>
#include <dlfcn.h>
#include <string_view>
#include <system_error>

#include "platform/files/FileName.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

constexpr char kTableName[] = "Localizable.strings";
// The language of the keys themselves.
constexpr std::string_view kKeyLanguage = "en";

fs::path resourcesFolder(const fs::path& bundle) { return bundle / "Contents" / "Resources"; }

fs::path languageFolder(const fs::path& bundle, const std::string& language) {
  return resourcesFolder(bundle) / (language + ".lproj");
}

void addTexts(const PropertyList::Dictionary& table, std::map<std::string, std::string>& strings) {
  for (const auto& [key, value] : table) {
    if (const OptString text = value.string()) strings.emplace(key, *text);
  }
}

std::map<std::string, std::string> readStrings(const fs::path& bundle) {
  std::map<std::string, std::string> strings;
  for (const std::string& language : userLanguages()) {
    const auto table = readPropertyList(languageFolder(bundle, language) / kTableName);
    if (table && table->dictionary() != nullptr) addTexts(*table->dictionary(), strings);
  }
  return strings;
}

bool isRegularFile(const fs::path& file) {
  std::error_code failure;
  return fs::is_regular_file(file, failure);
}

std::string_view environment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

// The locale of the messages.
std::string_view messagesLocale() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const std::string_view locale = environment(variable);
    if (!locale.empty()) return locale;
  }
  return "C";
}

bool isCLocale(std::string_view locale) {
  const std::string_view name = locale.substr(0, locale.find('.'));
  return name == "C" || name == "POSIX";
}

// Languages become folder names, so nothing else may pass.
bool isLanguage(std::string_view name) {
  constexpr std::string_view kAllowed =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-@";
  return !name.empty() && name.find_first_not_of(kAllowed) == std::string_view::npos;
}

// Adds the language of a locale name, language[_territory][.codeset][@modifier], and its less
// specific forms, in the order in which gettext tries them.
void addForms(std::string_view locale, std::vector<std::string>& languages) {
  const std::string_view name = locale.substr(0, locale.find_first_of(".@"));
  const std::string_view language = name.substr(0, name.find('_'));
  const std::size_t at = locale.find('@');
  const std::string_view modifier =
      at != std::string_view::npos ? locale.substr(at) : std::string_view();
  for (const std::string_view suffix : {modifier, std::string_view()}) {
    for (const std::string_view base : {name, language}) {
      const std::string form = std::string(base) + std::string(suffix);
      const bool known = std::find(languages.begin(), languages.end(), form) != languages.end();
      if (isLanguage(form) && !known) languages.push_back(form);
    }
  }
}

bool endsWithKeyLanguage(const std::vector<std::string>& languages) {
  return !languages.empty() && languages.back() == kKeyLanguage;
}

}  // namespace

Bundle Bundle::atPath(fs::path folder) {
  Bundle bundle;
  if (folder.empty()) return bundle;
  bundle.information = readPropertyList(folder / "Contents" / "Info.plist");
  bundle.strings = readStrings(folder);
  bundle.folder = std::move(folder);
  return bundle;
}

Bundle Bundle::forCode(const void* address) {
  Dl_info module = {};
  if (address == nullptr || dladdr(address, &module) == 0 || module.dli_fname == nullptr) return {};
  std::error_code failure;
  const fs::path file = fs::absolute(module.dli_fname, failure).lexically_normal();
  const fs::path platform = file.parent_path();
  const fs::path contents = platform.parent_path();
  if (failure || platform.filename() != "Linux" || contents.filename() != "Contents") return {};
  return atPath(contents.parent_path());
}

const PropertyList* Bundle::infoDictionary() const {
  return information && information->dictionary() != nullptr ? &*information : nullptr;
}

OptString Bundle::info(const std::string& key) const {
  return information ? information->stringAt({key}) : std::nullopt;
}

std::string Bundle::localizedString(const std::string& key) const {
  const auto found = strings.find(key);
  return found != strings.end() ? found->second : key;
}

std::optional<fs::path> Bundle::resource(const std::string& name) const {
  if (folder.empty() || !isPlainFileName(name)) return std::nullopt;
  for (const std::string& language : userLanguages()) {
    fs::path file = languageFolder(folder, language) / name;
    if (isRegularFile(file)) return file;
  }
  fs::path file = resourcesFolder(folder) / name;
  return isRegularFile(file) ? std::optional(std::move(file)) : std::nullopt;
}

std::vector<std::string> userLanguages() {
  const std::string_view locale = messagesLocale();
  if (isCLocale(locale)) return {};
  std::string_view list = environment("LANGUAGE");
  if (list.empty()) list = locale;
  std::vector<std::string> languages;
  while (!list.empty() && !endsWithKeyLanguage(languages)) {
    const std::string_view wanted = list.substr(0, list.find(':'));
    if (isCLocale(wanted)) break;
    addForms(wanted, languages);
    list.remove_prefix(std::min(wanted.size() + 1, list.size()));
  }
  return languages;
}

}  // namespace tavrin

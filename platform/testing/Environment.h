#pragma once

#include <cstdlib>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace tavrin::test {

// The locale variables as a test wants them, everything else about the user's language unset; as
// before when it ends.
class LocaleEnvironment {
 public:
  LocaleEnvironment(std::initializer_list<std::pair<const char*, const char*>> wanted) {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"}) {
      const char* value = std::getenv(name);
      before[name] = value != nullptr ? std::optional<std::string>(value) : std::nullopt;
      unsetenv(name);
    }
    for (const auto& [name, value] : wanted) setenv(name, value, 1);
  }
  ~LocaleEnvironment() {
    for (const auto& [name, value] : before) {
      value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
    }
  }
  LocaleEnvironment(const LocaleEnvironment&) = delete;
  LocaleEnvironment& operator=(const LocaleEnvironment&) = delete;

 private:
  std::map<std::string, std::optional<std::string>> before;
};

}  // namespace tavrin::test

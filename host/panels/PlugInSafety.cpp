#include "host/panels/PlugInSafety.h"

#include <cerrno>
#include <cstring>
#include <pwd.h>
#include <set>
#include <sys/stat.h>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/text/Quoted.h"

namespace tavrin {

namespace fs = std::filesystem;

namespace {

std::string userName(uid_t user) {
  const passwd* entry = getpwuid(user);
  return entry ? entry->pw_name : std::to_string(user);
}

// Looks at a bundle from the outermost folder inwards: once a folder is found safe, nobody can
// exchange what is in it. Links are followed one by one, because each of those on the way decides
// where the path ends.
class SafetyWalk {
 public:
  SafetyWalk(const fs::path& bundle, uid_t theUser) : user(theUser) {
    addRoute(bundle, Role::inBundle);
  }

  std::string danger() {
    for (std::size_t next = 0; next < places.size(); ++next) {
      if (places.size() > kMostPlacesInBundle)
        return "it holds more than " + std::to_string(kMostPlacesInBundle) +
               " files. Install it again.";
      // A copy: the list may grow and move.
      if (std::string found = dangerAt(Place(places[next])); !found.empty()) return found;
    }
    return {};
  }

 private:
  // Of a folder on the way only one entry is used; of one in the bundle any may be.
  enum class Role { onTheWay, inBundle };
  using Place = std::pair<fs::path, Role>;

  void add(const fs::path& path, Role role) {
    if (seen.emplace(path.native(), role).second) places.emplace_back(path, role);
  }

  void addRoute(const fs::path& path, Role role) {
    fs::path way;
    for (const fs::path& part : path.parent_path()) add(way /= part, Role::onTheWay);
    add(path, role);
  }

  std::string dangerAt(const Place& place) {
    const auto& [path, role] = place;
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) return cannotBeRead(path, errno);
    if (status.st_uid != 0 && status.st_uid != user)
      return quoted(path.string()) + " belongs to the user " + quoted(userName(status.st_uid)) +
             ". Make it root's or your own with chown, or install the plug-in elsewhere.";
    if (S_ISLNK(status.st_mode)) return addTarget(place);
    if (!S_ISDIR(status.st_mode) && !S_ISREG(status.st_mode))
      return quoted(path.string()) + " is neither a file nor a folder. Install the plug-in again.";
    if (role == Role::inBundle || !(status.st_mode & S_ISVTX))
      if (std::string found = othersWrite(path, status.st_mode); !found.empty()) return found;
    return S_ISDIR(status.st_mode) && role == Role::inBundle ? addEntries(path) : std::string();
  }

  static std::string cannotBeRead(const fs::path& path, int reason) {
    return quoted(path.string()) + " cannot be read: " + std::strerror(reason) +
           ". Install the plug-in again.";
  }

  static std::string othersWrite(const fs::path& path, mode_t mode) {
    if (!(mode & (S_IWGRP | S_IWOTH))) return {};
    return (mode & S_IWOTH ? "every user can write to " : "everybody in its group can write to ") +
           quoted(path.string()) + ". Take that permission away with chmod go-w.";
  }

  std::string addTarget(const Place& link) {
    std::error_code error;
    const fs::path target = fs::read_symlink(link.first, error);
    if (error) return cannotBeRead(link.first, error.value());
    addRoute(link.first.parent_path() / target, link.second);
    return {};
  }

  // By the folder's own path, however it was reached: links may go round.
  std::string addEntries(const fs::path& folder) {
    std::error_code error;
    const fs::path real = fs::canonical(folder, error);
    if (real != folder && !error) {
      add(real, Role::inBundle);
      return {};
    }
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
      add(entry->path(), Role::inBundle);
      if (places.size() > kMostPlacesInBundle) break;
    }
    return error ? cannotBeRead(folder, error.value()) : std::string();
  }

  uid_t user;
  std::vector<Place> places;  // those found so far, a folder before what is in it
  std::set<std::pair<std::string, Role>> seen;
};

}  // namespace

std::string dangerIn(const fs::path& bundle, uid_t user) {
  return SafetyWalk(bundle, user).danger();
}

}  // namespace tavrin

#pragma once

#include <filesystem>
#include <map>
#include <string>

#include <QImage>

#include "platform/text/Result.h"

class QWidget;

namespace tavrin {

// Pictures of what a person would have seen, in a folder, numbered in the order in which they were
// taken: "001-panel-1.png", "002-MsgOne.png".
class Screenshots {
 public:
  // No pictures.
  Screenshots() = default;

  // Pictures in this folder, which is made if it is missing; the reason if it cannot be.
  static Result<Screenshots> inFolder(const std::filesystem::path& folder);

  // A picture of a panel, if it looks different from its last picture.
  void panel(const std::string& id, QWidget& widget);
  // A picture of a message window.
  void window(const std::string& name, QWidget& widget);
  // The panel is gone: the next one with this id is pictured even if it looks the same.
  void forget(const std::string& id) { lastOfPanel.erase(id); }

  // Why a picture could not be written, for the first of them; empty if all could be.
  const std::string& failure() const { return reason; }

 private:
  void save(const QImage& picture, const std::string& title);

  std::filesystem::path folder;
  int taken = 0;
  std::map<std::string, QImage> lastOfPanel;
  std::string reason;
};

}  // namespace tavrin

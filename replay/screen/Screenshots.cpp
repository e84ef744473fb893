#include "replay/screen/Screenshots.h"

#include <cctype>
#include <system_error>

#include <QPixmap>
#include <QString>
#include <QWidget>

#include "platform/text/Quoted.h"

namespace tavrin {
namespace {

// An id is the script's own text; a file name must not lead out of the folder.
std::string fileNamePart(std::string title) {
  constexpr std::size_t kLongest = 40;
  for (char& c : title)
    if (!std::isalnum(static_cast<unsigned char>(c)) && c != '-') c = '_';
  return title.substr(0, kLongest);
}

}  // namespace

Result<Screenshots> Screenshots::inFolder(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error)
    return Failure{"The folder " + quoted(folder.string()) +
                   " for the pictures cannot be made: " + error.message() + "."};
  Screenshots pictures;
  pictures.folder = folder;
  return pictures;
}

void Screenshots::panel(const std::string& id, QWidget& widget) {
  if (folder.empty()) return;
  // Some styles draw a slider's marks differently the first time after the window lost the focus.
  widget.grab();
  const QImage picture = widget.grab().toImage();
  QImage& last = lastOfPanel[id];
  if (picture == last) return;
  last = picture;
  save(picture, "panel-" + id);
}

void Screenshots::window(const std::string& name, QWidget& widget) {
  if (!folder.empty()) save(widget.grab().toImage(), name);
}

void Screenshots::save(const QImage& picture, const std::string& title) {
  const QString number = QString::number(++taken).rightJustified(3, '0');
  const auto file = folder / (number.toStdString() + "-" + fileNamePart(title) + ".png");
  if (!picture.save(QString::fromStdString(file.string()), "PNG") && reason.empty())
    reason = "The picture " + quoted(file.string()) + " cannot be written.";
}

}  // namespace tavrin

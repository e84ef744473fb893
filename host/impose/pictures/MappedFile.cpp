#include "host/impose/pictures/MappedFile.h"

#include "host/impose/pictures/Trouble.h"
#include "platform/text/Quoted.h"

namespace tavrin {

MappedFile::MappedFile(const std::filesystem::path& path) : file(QFile::decodeName(path.c_str())) {
  const bool isOpen = file.open(QIODevice::ReadOnly);
  if (isOpen && file.size() > 0)
    if (const unsigned char* start = file.map(0, file.size()))
      contents = {start, static_cast<std::size_t>(file.size())};
  if (contents.empty())
    throw Trouble(
        Status::damaged,
        "The document " + quoted(path.string()) +
            (isOpen ? " is empty." : " cannot be read: " + file.errorString().toStdString() + "."));
}

}  // namespace tavrin

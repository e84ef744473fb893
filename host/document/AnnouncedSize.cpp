#include "host/document/AnnouncedSize.h"

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrin {

std::uint64_t announcedSize(int descriptor) {
  struct stat status {};
  if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) return 0;
  // Standard input may have been read in part by the command before.
  const off_t place = std::max<off_t>(lseek(descriptor, 0, SEEK_CUR), 0);
  return static_cast<std::uint64_t>(std::max<off_t>(status.st_size - place, 0));
}

}  // namespace tavrin

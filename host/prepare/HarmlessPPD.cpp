#include "host/prepare/HarmlessPPD.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

#include "platform/files/FileDescriptor.h"
#include "platform/text/IgnoringCase.h"
#include "ppd/CupsHandles.h"

namespace tavrin {

namespace {

// How the statements begin that name programs.
constexpr std::array<std::string_view, 2> kProgramKeywords{"*cupsfilter", "*cupsprefilter"};

// Another keyword of the same length leaves everything else in its place, whatever the parser
// takes for the end of a line or of a text.
void rename(std::string& text, std::string_view keyword) {
  for (auto from = text.begin();;) {
    from = std::search(from, text.end(), keyword.begin(), keyword.end(),
                       [](char c, char wanted) { return lowerCase(c) == wanted; });
    if (from == text.end()) return;
    *(from + 1) = 'X';
  }
}

PPDPtr parsed(const std::string& text) {
  FileDescriptor file(memfd_create("ppd", MFD_CLOEXEC));
  if (!file || write(file.get(), text.data(), text.size()) != static_cast<ssize_t>(text.size()))
    return nullptr;
  lseek(file.get(), 0, SEEK_SET);
  return PPDPtr(ppdOpenFd(dup(file.get())));
}

// The parser that the filters' caller uses has the last word.
bool namesPrograms(ppd_file_t& ppd) {
  return ppd.num_filters > 0 || ppdFindAttr(&ppd, "cupsFilter2", nullptr) ||
         ppdFindAttr(&ppd, "cupsPreFilter", nullptr);
}

}  // namespace

std::string harmlessPPD(std::string text) {
  for (const std::string_view keyword : kProgramKeywords) rename(text, keyword);
  const PPDPtr ppd = parsed(text);
  return ppd && !namesPrograms(*ppd) ? text : "";
}

}  // namespace tavrin

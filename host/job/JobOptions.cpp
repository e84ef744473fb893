#include "host/job/JobOptions.h"

#include <algorithm>

#include "host/printer/MarkedOptions.h"
#include "platform/text/IgnoringCase.h"

namespace tavrin {
namespace {

// A general option of the print system says the same as a mark of the PPD and could contradict it.
void removeWhatMarksSay(OptionList& options, const OptionList& marked) {
  if (optionValue(marked, kPaperSizeKeyword)) removeOption(options, "media");
  for (const char* keyword : kTwoSidedKeywords)
    if (optionValue(marked, keyword)) removeOption(options, "sides");
}

// What was asked for in an option of the PPD before the person took every mark of it away.
void removeUnmarked(OptionList& options, ppd_file_t& ppd, const OptionList& marked) {
  std::erase_if(options, [&](const auto& option) {
    const auto& [name, value] = option;
    return ppdFindOption(&ppd, name.c_str()) && !optionValue(marked, name) &&
           !isCustomChoice(value);
  });
}

std::string shellQuoted(const std::string& text) {
  std::string quoted = "'";
  for (const char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

// The value as one "-o" holds it, where blanks separate options and quotes hold them together.
std::string escaped(const std::string& value) {
  std::string text;
  for (const char c : value) {
    if (std::string_view(" \t\n\v\f\r\\'\"").find(c) != std::string_view::npos) text += '\\';
    text += c;
  }
  return text;
}

}  // namespace

OptionList jobOptions(const JobRequest& request, ppd_file_t* ppd) {
  OptionList options = request.options;
  if (ppd) {
    const OptionList marked = markedOptions(*ppd);
    removeWhatMarksSay(options, marked);
    removeUnmarked(options, *ppd, marked);
    for (const auto& [name, value] : marked) setOption(options, name, value);
  }
  removeOption(options, kCopiesOption);
  if (request.copies > 1) setOption(options, kCopiesOption, std::to_string(request.copies));
  if (!request.pageRanges.empty()) setOption(options, kPageRangesOption, request.pageRanges);
  return options;
}

std::string lpCommand(const JobRequest& request, const OptionList& options) {
  std::string command = "lp";
  const std::string instance = request.instance.empty() ? "" : "/" + request.instance;
  if (!request.printer.empty()) command += " -d " + shellQuoted(request.printer + instance);
  if (request.copies > 1) command += " -n " + std::to_string(request.copies);
  if (!request.title.empty()) command += " -t " + shellQuoted(request.title);
  for (const auto& [name, value] : options)
    if (!equalIgnoringCase(name, kCopiesOption))
      command += " -o " + shellQuoted(name + "=" + escaped(value));
  return command + " -- " + shellQuoted(request.document.string());
}

}  // namespace tavrin

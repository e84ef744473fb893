#include "host/PrintOptions.h"

#include <algorithm>
#include <memory>
#include <span>
#include <strings.h>

#include <cups/cups.h>
#include <cups/ppd.h>

#include "host/CupsOptions.h"
#include "host/PanelHost.h"

namespace tavrin {

namespace {

bool sameName(const std::string& a, const std::string& b) {
  return strcasecmp(a.c_str(), b.c_str()) == 0;
}

auto find(OptionList& options, const std::string& name) {
  return std::find_if(options.begin(), options.end(),
                      [&](const auto& option) { return sameName(option.first, name); });
}

void remove(OptionList& options, const std::string& name) {
  std::erase_if(options, [&](const auto& option) { return sameName(option.first, name); });
}

bool isCustom(const std::string& choice) {
  return sameName(choice, "Custom") || strncasecmp(choice.c_str(), "Custom.", 7) == 0;
}

// Every choice that is marked, separated by commas where many can be.
std::string markedChoices(ppd_option_t& option) {
  std::string marked;
  for (const ppd_choice_t& choice :
       std::span(option.choices, static_cast<std::size_t>(option.num_choices)))
    if (choice.marked) marked += (marked.empty() ? "" : ",") + std::string(choice.choice);
  return marked;
}

void appendMarked(const ppd_group_t& group, OptionList& options) {
  if (sameName(group.name, "InstallableOptions")) return;
  for (ppd_option_t& option :
       std::span(group.options, static_cast<std::size_t>(group.num_options))) {
    const std::string choices = markedChoices(option);
    // The mark does not hold a value of the person's own; the option that they gave does.
    if (!choices.empty() && !isCustom(choices)) setOption(options, option.keyword, choices);
  }
  for (const ppd_group_t& inner :
       std::span(group.subgroups, static_cast<std::size_t>(group.num_subgroups)))
    appendMarked(inner, options);
}

// Several choices of an option where many can be picked; all of them must be known.
bool markEach(ppd_file_s& ppd, const ppd_option_t& option, const std::string& value) {
  bool known = true;
  for (std::size_t start = 0; start <= value.size();) {
    const std::size_t end = std::min(value.find(',', start), value.size());
    known = markChoice(&ppd, option.keyword, value.substr(start, end - start)) && known;
    start = end + 1;
  }
  return known;
}

bool markValue(ppd_file_s& ppd, ppd_option_t& option, const std::string& value) {
  if (isCustom(value) && ppdFindCustomOption(&ppd, option.keyword)) {
    ppdMarkOption(&ppd, option.keyword, value.c_str());
    return true;
  }
  if (markChoice(&ppd, option.keyword, value)) return true;
  return option.ui == PPD_UI_PICKMANY && markEach(ppd, option, value);
}

// A general option of the print system says the same as a mark of the PPD and could contradict it.
void removeWhatMarksSay(OptionList& options, const OptionList& marked) {
  if (optionValue(marked, kPaperSizeKeyword)) remove(options, "media");
  for (const char* keyword : kTwoSidedKeywords)
    if (optionValue(marked, keyword)) remove(options, "sides");
}

// What was asked for in an option of the PPD before the person took every mark of it away.
void removeUnmarked(OptionList& options, ppd_file_s& ppd, const OptionList& marked) {
  std::erase_if(options, [&](const auto& option) {
    const auto& [name, value] = option;
    return ppdFindOption(&ppd, name.c_str()) && !optionValue(marked, name) && !isCustom(value);
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

OptionList parseOptions(const std::string& argument) {
  CupsOptions parsed;
  parsed.parse(argument);
  return parsed.list();
}

OptString optionValue(const OptionList& options, const std::string& name) {
  for (const auto& [key, value] : options)
    if (sameName(key, name)) return value;
  return std::nullopt;
}

void setOption(OptionList& options, const std::string& name, const std::string& value) {
  if (const auto place = find(options, name); place != options.end())
    *place = {name, value};
  else
    options.emplace_back(name, value);
}

OptionList markedOptions(ppd_file_s& ppd) {
  OptionList options;
  for (const ppd_group_t& group : std::span(ppd.groups, static_cast<std::size_t>(ppd.num_groups)))
    appendMarked(group, options);
  return options;
}

std::vector<std::string> markOptions(ppd_file_s& ppd, const OptionList& options) {
  // First what the print system's general options ("media", "sides") mean on this printer.
  const CupsOptions all(options);
  cupsMarkOptions(&ppd, all.count(), all.data());
  std::vector<std::string> problems;
  for (const auto& [name, value] : options) {
    ppd_option_t* option = ppdFindOption(&ppd, name.c_str());
    if (option && !markValue(ppd, *option, value))
      problems.push_back("The printer's option \"" + std::string(option->keyword) +
                         "\" has no choice \"" + value + "\".");
  }
  return problems;
}

OptionList jobOptions(const JobRequest& request, ppd_file_s* ppd) {
  OptionList options = request.options;
  if (ppd) {
    const OptionList marked = markedOptions(*ppd);
    removeWhatMarksSay(options, marked);
    removeUnmarked(options, *ppd, marked);
    for (const auto& [name, value] : marked) setOption(options, name, value);
  }
  remove(options, "copies");
  if (request.copies > 1) setOption(options, "copies", std::to_string(request.copies));
  if (!request.pageRanges.empty()) setOption(options, "page-ranges", request.pageRanges);
  return options;
}

std::string jobTitle(const JobRequest& request) {
  if (!request.title.empty()) return request.title;
  return request.document == "-" ? "(stdin)" : request.document.filename().string();
}

std::string lpCommand(const JobRequest& request, const OptionList& options) {
  std::string command = "lp";
  const std::string instance = request.instance.empty() ? "" : "/" + request.instance;
  if (!request.printer.empty()) command += " -d " + shellQuoted(request.printer + instance);
  if (request.copies > 1) command += " -n " + std::to_string(request.copies);
  if (!request.title.empty()) command += " -t " + shellQuoted(request.title);
  for (const auto& [name, value] : options)
    if (!sameName(name, "copies")) command += " -o " + shellQuoted(name + "=" + escaped(value));
  return command + " -- " + shellQuoted(request.document.string());
}

}  // namespace tavrin

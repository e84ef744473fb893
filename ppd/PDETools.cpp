#include "ppd/PDETools.h"

#include <cstring>
#include <string_view>

#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

constexpr std::string_view kPrintersFolder = "/Library/Printers/Tavrin/";

OptString decoded(const ppd_choice_t* choice, ChoicePart part) {
  if (choice == nullptr) return std::nullopt;
  return decodeUTF8(part == ChoicePart::keyword ? choice->choice : choice->text);
}

// The value of the first attribute of that name; null when there is none.
const char* attributeValue(ppd_file_t* ppd, const std::string& name) {
  if (ppd == nullptr) return nullptr;
  const ppd_attr_t* attribute = ppdFindAttr(ppd, name.c_str(), nullptr);
  return attribute != nullptr ? attribute->value : nullptr;
}

// Takes away, at both ends, every character that stands anywhere in the printers folder's path.
// It is a set of characters, not a prefix: "abc" loses its a and b.
std::string trimPrintersFolder(const std::string& path) {
  const auto first = path.find_first_not_of(kPrintersFolder);
  if (first == std::string::npos) return {};
  return path.substr(first, path.find_last_not_of(kPrintersFolder) - first + 1);
}

std::string withoutLastComponent(const std::string& path) {
  const auto slash = path.rfind('/');
  return slash != std::string::npos ? path.substr(0, slash) : std::string();
}

}  // namespace

StringEncoding PDETools::getEncodingFromPPD(const ppd_file_t* ppd) const {
  const char* name = ppd != nullptr ? ppd->lang_encoding : nullptr;
  if (name == nullptr) return kMacOSRomanEncoding;
  if (std::strcmp(name, kISOLatin1) == 0) return kISOLatin1Encoding;
  if (std::strcmp(name, kWindowsANSI) == 0) return kWindowsLatin1Encoding;
  if (std::strcmp(name, kJIS83_RKSJ) == 0) return kShiftJISEncoding;
  if (std::strcmp(name, kUTF_8) == 0) return kUTF8Encoding;
  if (std::strcmp(name, kUTF8) == 0) return kUTF8Encoding;
  return kMacOSRomanEncoding;
}

OptString PDETools::getModelName(const ppd_file_t* ppd) const {
  return ppd != nullptr ? decodeUTF8(ppd->modelname) : std::nullopt;
}

ppd_option_t* PDETools::getPPDOption(const char* option, ppd_file_t* withPPD) const {
  return ppdFindOption(withPPD, option);
}

signed char PDETools::getPPDOptionUI(const std::string& option, ppd_file_t* withPPD) const {
  const ppd_option_t* record = ppdFindOption(withPPD, option.c_str());
  return record != nullptr ? static_cast<signed char>(record->ui) : -1;
}

OptString PDETools::getOptionsDefault(const std::string& option, ppd_file_t* withPPD) const {
  const ppd_option_t* record = ppdFindOption(withPPD, option.c_str());
  return record != nullptr ? decodeUTF8(record->defchoice) : std::nullopt;
}

OptString PDETools::getLocalizedPaperSize(const OptString& paper, ppd_file_t* withPPD) const {
  return getOptionsChoice(paper, ppdFindOption(withPPD, kPageSizeKey), ChoicePart::text);
}

OptString PDETools::getOptionsChoice(const OptString& choice, ppd_option_t* withOption,
                                     ChoicePart part) const {
  if (withOption == nullptr || !choice) return std::nullopt;
  return decoded(ppdFindChoice(withOption, choice->c_str()), part);
}

SettingChoice PDETools::optionsChoice(const OptString& keyword, ppd_option_t* option) const {
  return {getOptionsChoice(keyword, option, ChoicePart::text),
          getOptionsChoice(keyword, option, ChoicePart::keyword)};
}

SettingChoice PDETools::choiceAt(long index, const ppd_option_t* option,
                                 StringEncoding encoding) const {
  if (option == nullptr || index < 0 || index >= option->num_choices) return {};
  const ppd_choice_t& choice = option->choices[index];
  return {decode(choice.text, encoding), decode(choice.choice, encoding)};
}

OptString PDETools::getPPDMarkedChoice(const std::string& option, ppd_file_t* withPPD,
                                       ChoicePart part) const {
  return decoded(ppdFindMarkedChoice(withPPD, option.c_str()), part);
}

SettingChoice PDETools::markedChoice(const std::string& option, ppd_file_t* ppd) const {
  return {getPPDMarkedChoice(option, ppd, ChoicePart::text),
          getPPDMarkedChoice(option, ppd, ChoicePart::keyword)};
}

OptString PDETools::getModelYear(ppd_file_t* ppd) const {
  const OptString path = decodeUTF8(attributeValue(ppd, CUPS_DRIVER_KEY));
  if (!path) return std::nullopt;
  return withoutLastComponent(trimPrintersFolder(*path));
}

OptString PDETools::getComponentPath(const std::string& attribute, ppd_file_t* withPPD,
                                     StringEncoding andEncoding) const {
  const char* value = attributeValue(withPPD, attribute);
  return value != nullptr ? decode(value, andEncoding) : std::nullopt;
}

}  // namespace tavrin

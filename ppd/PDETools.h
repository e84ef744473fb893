#pragma once

#include <string>

#include <cups/ppd.h>

#include "platform/text/OptionalString.h"
#include "ppd/Setting.h"
#include "ppd/TextEncoding.h"

namespace tavrin {

// The names that a PPD gives to text encodings.
inline constexpr char kISOLatin1[] = "ISOLatin1";
inline constexpr char kWindowsANSI[] = "WindowsANSI";
inline constexpr char kJIS83_RKSJ[] = "JIS83-RKSJ";
inline constexpr char kUTF_8[] = "UTF-8";
inline constexpr char kUTF8[] = "UTF8";

// The two sides of a choice: the text for people and the keyword as the PPD spells it.
enum class ChoicePart { text, keyword };

// The part that a flag of the named operations means.
constexpr ChoicePart choicePart(bool flag) { return flag ? ChoicePart::keyword : ChoicePart::text; }

// Every question that the panel asks of a PPD. Stateless: make one where it is needed. PPDs and
// option records are borrowed, and may be null unless an operation says otherwise; what a PPD does
// not have is answered with absent or null. Keywords and attribute names are found in any letter
// case.
class PDETools {
 public:
  // Whether the host knows panels at all; always.
  bool isRunningOn105OrLater() const { return true; }

  // The encoding of the PPD's texts; Mac OS Roman when it names none or an unknown one.
  StringEncoding getEncodingFromPPD(const ppd_file_t* ppd) const;

  // The printer's model name; absent when the PPD has none or is null.
  OptString getModelName(const ppd_file_t* ppd) const;

  // The record of an option; null when there is none.
  ppd_option_t* getPPDOption(const char* option, ppd_file_t* withPPD) const;

  // 0 boolean, 1 pick-one, 2 pick-many; -1 when there is no such option.
  signed char getPPDOptionUI(const std::string& option, ppd_file_t* withPPD) const;

  // The keyword of an option's default choice.
  OptString getOptionsDefault(const std::string& option, ppd_file_t* withPPD) const;

  // The text of a paper name in "PageSize".
  OptString getLocalizedPaperSize(const OptString& paper, ppd_file_t* withPPD) const;

  // A choice of an option, found by its keyword: the keyword (flag true) or the text (flag false).
  OptString getOptionsChoice(const OptString& choice, ppd_option_t* withOption,
                             bool andFlag) const {
    return getOptionsChoice(choice, withOption, choicePart(andFlag));
  }
  OptString getOptionsChoice(const OptString& choice, ppd_option_t* withOption,
                             ChoicePart part) const;
  // Both parts of such a choice.
  SettingChoice optionsChoice(const OptString& keyword, ppd_option_t* option) const;

  // The choice at a position of an option; absent when there is no such position.
  SettingChoice choiceAt(long index, const ppd_option_t* option, StringEncoding encoding) const;

  // The marked choice of an option: its keyword (flag true) or text (flag false); absent when
  // nothing is marked.
  OptString getPPDMarkedChoice(const std::string& option, ppd_file_t* withPPD, bool andFlag) const {
    return getPPDMarkedChoice(option, withPPD, choicePart(andFlag));
  }
  OptString getPPDMarkedChoice(const std::string& option, ppd_file_t* withPPD,
                               ChoicePart part) const;
  // Both parts of such a choice.
  SettingChoice markedChoice(const std::string& option, ppd_file_t* ppd) const;

  // The folder that names the driver's generation: a year such as "2007", or "Drivers"; absent
  // without "TavDriverPath".
  OptString getModelYear(ppd_file_t* ppd) const;

  // The value of an attribute, decoded; absent when it is missing or no text of that encoding.
  OptString getComponentPath(const std::string& attribute, ppd_file_t* withPPD,
                             StringEncoding andEncoding) const;
};

}  // namespace tavrin

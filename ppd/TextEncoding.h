#pragma once

#include <string_view>

#include "platform/text/OptionalString.h"

namespace tavrin {

// The platform's number of a character set. Any other number decodes nothing.
using StringEncoding = unsigned long;

inline constexpr StringEncoding kASCIIEncoding = 1;
inline constexpr StringEncoding kUTF8Encoding = 4;
inline constexpr StringEncoding kISOLatin1Encoding = 5;
inline constexpr StringEncoding kShiftJISEncoding = 8;
inline constexpr StringEncoding kWindowsLatin1Encoding = 12;
inline constexpr StringEncoding kMacOSRomanEncoding = 30;

// The bytes as a UTF-8 text; absent when they are no text of that encoding.
OptString decode(std::string_view bytes, StringEncoding encoding);

// The same for a C string of UTF-8, as the records of a PPD hold them; absent for null too.
OptString decodeUTF8(const char* text);

}  // namespace tavrin

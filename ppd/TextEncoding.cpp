#include "ppd/TextEncoding.h"

#include <iconv.h>
#include <memory>

namespace tavrin {
namespace {

const char* characterSet(StringEncoding encoding) {
  switch (encoding) {
    case kASCIIEncoding:
      return "ASCII";
    case kUTF8Encoding:
      return "UTF-8";
    case kISOLatin1Encoding:
      return "ISO-8859-1";
    // Printers' texts use the vendor extensions, and a backslash in them is a backslash.
    case kShiftJISEncoding:
      return "CP932";
    case kWindowsLatin1Encoding:
      return "CP1252";
    case kMacOSRomanEncoding:
      return "MACINTOSH";
    default:
      return nullptr;
  }
}

class Converter {
 public:
  explicit Converter(const char* from) : handle(iconv_open("UTF-8", from)) {}
  ~Converter() {
    if (usable()) iconv_close(handle);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  bool usable() const { return handle != invalid(); }

  OptString convert(std::string_view bytes) {
    std::string text(bytes.size() * kLongestCharacter, '\0');
    char* in = const_cast<char*>(bytes.data());  // iconv reads only
    std::size_t inLeft = bytes.size();
    char* out = text.data();
    std::size_t outLeft = text.size();
    if (iconv(handle, &in, &inLeft, &out, &outLeft) != 0 || inLeft != 0) return std::nullopt;
    text.resize(text.size() - outLeft);
    return text;
  }

 private:
  // One byte of any of the character sets becomes at most this many bytes of UTF-8.
  static constexpr std::size_t kLongestCharacter = 4;
  static iconv_t invalid() { return reinterpret_cast<iconv_t>(-1); }

  iconv_t handle;
};

}  // namespace

OptString decode(std::string_view bytes, StringEncoding encoding) {
  const char* from = characterSet(encoding);
  if (from == nullptr) return std::nullopt;
  Converter converter(from);
  return converter.usable() ? converter.convert(bytes) : std::nullopt;
}

OptString decodeUTF8(const char* text) {
  return text != nullptr ? decode(text, kUTF8Encoding) : std::nullopt;
}

}  // namespace tavrin

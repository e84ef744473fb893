#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "platform/text/OptionalString.h"

// A diagnostic log: one stream for the process and a routine that writes a line with the time and
// the place it was called from. Nothing in the plug-in calls it in normal use.

namespace tavrin {

// The log's stream; null until the first line. Never closed or changed once it is set.
extern std::FILE* gFileStream;

// Opens the log for appending, readable and writable for everybody, whatever the umask; without a
// path (null), or where the file cannot be opened, the log is standard error.
void traceOpenLog(const char* path);

namespace trace {

// What an argument of a message may be.
enum class Kind { signedNumber, unsignedNumber, real, character, text, pointer, object };

// An array knows its length, so it need not end with a NUL.
template <class T>
constexpr bool isCharArray =
    std::is_array_v<T>&& std::is_same_v<std::remove_cv_t<std::remove_extent_t<T>>, char>;

template <class T>
constexpr Kind kindOf() {
  using D = std::decay_t<T>;
  if constexpr (isCharArray<T> || std::is_same_v<D, OptString> || std::is_same_v<D, std::string> ||
                std::is_same_v<D, std::string_view>) {
    return Kind::object;
  } else if constexpr (std::is_same_v<D, const char*> || std::is_same_v<D, char*>) {
    return Kind::text;
  } else if constexpr (std::is_same_v<D, char>) {
    return Kind::character;
  } else if constexpr (std::is_pointer_v<D> || std::is_same_v<D, std::nullptr_t>) {
    return Kind::pointer;
  } else if constexpr (std::is_floating_point_v<D>) {
    return Kind::real;
  } else if constexpr (std::is_enum_v<D>) {
    return Kind::signedNumber;
  } else {
    static_assert(std::is_integral_v<D>, "a trace message cannot show an argument of this type");
    return std::is_signed_v<D> ? Kind::signedNumber : Kind::unsignedNumber;
  }
}

// Whether a conversion character shows arguments of that kind.
constexpr bool shows(char conversion, Kind kind) {
  switch (conversion) {
    case '@':
      return kind == Kind::object;
    case 's':
      return kind == Kind::text || kind == Kind::object;
    case 'd':
    case 'i':
      return kind == Kind::signedNumber || kind == Kind::unsignedNumber;
    case 'u':
    case 'x':
    case 'X':
    case 'o':
      return kind == Kind::unsignedNumber || kind == Kind::signedNumber;
    case 'c':
      return kind == Kind::character;
    case 'p':
      return kind == Kind::pointer || kind == Kind::text;
    case 'e':
    case 'E':
    case 'f':
    case 'F':
    case 'g':
    case 'G':
      return kind == Kind::real;
    default:
      return false;
  }
}

// One directive of a format: "%", flags, width, precision, conversion. Length modifiers are read
// and dropped, as the argument's own type says how long it is.
struct Directive {
  std::size_t begin = 0;  // of the "%"
  std::size_t end = 0;    // behind the conversion
  char conversion = 0;    // 0 where the format ends inside the directive
};

constexpr bool isOneOf(char c, std::string_view set) {
  return set.find(c) != std::string_view::npos;
}

// The directive that begins at a "%".
constexpr Directive directiveAt(std::string_view format, std::size_t begin) {
  std::size_t at = begin + 1;
  while (at < format.size() && isOneOf(format[at], "-+ #0123456789.hlLqjzt")) ++at;
  if (at == format.size()) return {begin, at, 0};
  return {begin, at + 1, format[at]};
}

[[noreturn]] void formatDoesNotFitItsArguments();  // never defined: stops the compiler

// A message's format that was checked, when compiled, against the arguments it came with.
template <class... Args>
class Format {
 public:
  template <std::size_t N>
  consteval Format(const char (&literal)[N])  // NOLINT(google-explicit-constructor)
      : text(literal, N - 1) {
    constexpr std::size_t count = sizeof...(Args);
    const Kind kinds[count + 1] = {kindOf<Args>()..., Kind::object};
    std::size_t used = 0;
    for (std::size_t at = text.find('%'); at != std::string_view::npos; at = text.find('%', at)) {
      const Directive directive = directiveAt(text, at);
      at = directive.end;
      if (directive.conversion == '%') continue;
      if (used == count || !shows(directive.conversion, kinds[used])) {
        formatDoesNotFitItsArguments();
      }
      ++used;
    }
    if (used != count) formatDoesNotFitItsArguments();
  }

  std::string_view get() const { return text; }

 private:
  std::string_view text;
};

// An argument of a message, ready to be shown by any directive that fits its kind.
struct Argument {
  Kind kind;
  long long number = 0;         // also a character
  unsigned long long bits = 0;  // the number without its sign, in the argument's own width
  double real = 0;
  const void* pointer = nullptr;  // also a C string; may be null
  std::string_view object = {};   // "(null)" for an absent one
};

template <class T>
unsigned long long bitsOf(T value) {
  if constexpr (std::is_enum_v<T>) {
    return bitsOf(static_cast<std::underlying_type_t<T>>(value));
  } else {
    return static_cast<std::make_unsigned_t<decltype(+value)>>(+value);
  }
}

template <class T>
Argument argument(const T& value) {
  Argument made{kindOf<T>()};
  if constexpr (isCharArray<T>) {
    made.object = std::string_view(value, strnlen(value, std::extent_v<T>));
  } else if constexpr (std::is_same_v<T, OptString>) {
    made.object = value ? std::string_view(*value) : "(null)";
  } else if constexpr (kindOf<T>() == Kind::object) {
    made.object = value;
  } else if constexpr (kindOf<T>() == Kind::text || kindOf<T>() == Kind::pointer) {
    made.pointer = static_cast<const void*>(value);
  } else if constexpr (kindOf<T>() == Kind::real) {
    made.real = static_cast<double>(value);
  } else {
    made.number = static_cast<long long>(value);
    made.bits = bitsOf(value);
  }
  return made;
}

std::string render(std::string_view format, const Argument* arguments);

void writeLine(const char* first, const char* second, const char* routine, std::int32_t line,
               const char* path, std::string_view format, const Argument* arguments);

}  // namespace trace

// Writes one line, opening the log at `path` if it is not open yet:
//
//   <first><second><14:03:07.52013> : <routine> in line:<line> ## <message>
//
// The message's format has printf's directives and "%@" for the project's strings, absent ones
// included; it is checked against the arguments when compiled. The fourth parameter is not used.
// A message that is not UTF-8 is not written.
template <class... Args>
void TraceLogBody(const char* first, const char* second, const char* routine, const void*,
                  std::int32_t line, const char* path,
                  trace::Format<std::type_identity_t<Args>...> format, const Args&... arguments) {
  const trace::Argument list[sizeof...(Args) + 1] = {trace::argument(arguments)..., {}};
  trace::writeLine(first, second, routine, line, path, format.get(), list);
}

}  // namespace tavrin

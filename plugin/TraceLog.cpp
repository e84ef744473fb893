#include "plugin/TraceLog.h"

#include <ctime>
#include <sys/stat.h>
#include <sys/time.h>
#include <vector>

#include "platform/text/Visible.h"
#include "ppd/TextEncoding.h"

namespace tavrin {

std::FILE* gFileStream = nullptr;

void traceOpenLog(const char* path) {
  std::FILE* file = path != nullptr ? std::fopen(path, "a") : nullptr;
  if (file == nullptr) {
    gFileStream = stderr;
    return;
  }
  gFileStream = file;
  // On the open file, so that nobody can put another file under the name meanwhile.
  (void)fchmod(fileno(file), 0666);
}

namespace trace {
namespace {

template <class T>
std::string print(const std::string& directive, T value) {
  const int length = std::snprintf(nullptr, 0, directive.c_str(), value);
  if (length < 0) return {};
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  std::snprintf(text.data(), text.size(), directive.c_str(), value);
  text.pop_back();
  return text;
}

// The directive's flags, width and precision, with the length and conversion that the argument
// needs.
std::string directiveFor(std::string_view written, std::string_view conversion) {
  std::string directive;
  for (const char c : written.substr(0, written.size() - 1)) {
    if (!isOneOf(c, "hlLqjzt")) directive += c;
  }
  return directive.append(conversion);
}

std::string show(std::string_view written, const Argument& argument) {
  const std::string conversion(1, written.back());
  switch (argument.kind) {
    case Kind::object:
      return print(directiveFor(written, "s"), std::string(argument.object).c_str());
    case Kind::text:
      if (conversion == "s") {
        const auto* text = static_cast<const char*>(argument.pointer);
        return print(directiveFor(written, "s"), text != nullptr ? text : "(null)");
      }
      return print(directiveFor(written, "p"), argument.pointer);
    case Kind::pointer:
      return print(directiveFor(written, "p"), argument.pointer);
    case Kind::real:
      return print(directiveFor(written, conversion), argument.real);
    case Kind::character:
      return print(directiveFor(written, "c"), static_cast<int>(argument.number));
    case Kind::signedNumber:
    case Kind::unsignedNumber:
      return isOneOf(conversion[0], "di")
                 ? print(directiveFor(written, "ll" + conversion), argument.number)
                 : print(directiveFor(written, "ll" + conversion), argument.bits);
  }
  return {};
}

const char* orEmpty(const char* text) { return text != nullptr ? text : ""; }

}  // namespace

std::string render(std::string_view format, const Argument* arguments) {
  std::string message;
  std::size_t at = 0;
  while (at < format.size()) {
    if (format[at] != '%') {
      message += format[at++];
      continue;
    }
    const Directive directive = directiveAt(format, at);
    const std::string_view written = format.substr(at, directive.end - at);
    message += directive.conversion == '%' ? "%" : show(written, *arguments++);
    at = directive.end;
  }
  return message;
}

void writeLine(const char* first, const char* second, const char* routine, std::int32_t line,
               const char* path, std::string_view format, const Argument* arguments) {
  if (gFileStream == nullptr) traceOpenLog(path);
  if (gFileStream == nullptr) return;
  const OptString message = decode(render(format, arguments), kUTF8Encoding);
  if (!message) return;

  timeval now{};
  gettimeofday(&now, nullptr);
  tm local{};
  localtime_r(&now.tv_sec, &local);
  std::fprintf(gFileStream, "%s%s<%2.2d:%2.2d:%2.2d.%u> : %s in line:%d ## %s%s\n", orEmpty(first),
               orEmpty(second), local.tm_hour, local.tm_min, local.tm_sec,
               static_cast<unsigned>(now.tv_usec), orEmpty(routine), line,
               visibleLines(*message).c_str(), "");
  std::fflush(gFileStream);
}

}  // namespace trace
}  // namespace tavrin

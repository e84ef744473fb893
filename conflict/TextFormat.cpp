#include "conflict/TextFormat.h"

namespace tavrin {
namespace {

// The directive that begins there; null for any other text.
const std::string* directiveAt(const std::string& format, std::size_t at) {
  static const std::string directives[] = {"%@", "%1$@", "%%"};
  for (const std::string& directive : directives) {
    if (format.compare(at, directive.size(), directive) == 0) return &directive;
  }
  return nullptr;
}

}  // namespace

std::string formatWithObject(const std::string& format, const OptString& argument) {
  std::string text;
  for (std::size_t at = 0; at < format.size();) {
    const std::string* directive = directiveAt(format, at);
    if (directive == nullptr) {
      text += format[at++];
      continue;
    }
    text += *directive == "%%" ? "%" : argument.value_or("");
    at += directive->size();
  }
  return text;
}

}  // namespace tavrin

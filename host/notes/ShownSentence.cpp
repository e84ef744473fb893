#include "host/notes/ShownSentence.h"

#include <QRegularExpression>

#include "platform/qt/base/ShownText.h"

namespace tavrin {

QString shownSentence(const std::string& sentence) {
  // A mark behind a digit is an inch, one inside a word an apostrophe: neither begins a quotation.
  static const QRegularExpression kQuotation(R"((?<![^\s(])(["'])(\S.*?)\1(?=[\s.,:;)]|$))");
  return shownLines(sentence).replace(kQuotation, "“\\2”");
}

}  // namespace tavrin

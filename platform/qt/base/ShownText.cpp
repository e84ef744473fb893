#include "platform/qt/base/ShownText.h"

#include <algorithm>

namespace tavrin {

namespace {

// A PPD text has at most 80 bytes; only a damaged strings table has more than this in one line.
constexpr qsizetype kLineLimit = 160;
constexpr qsizetype kLinesLimit = 1000;
constexpr qsizetype kTextLimit = 100000;

bool breaksLayout(QChar c) {
  return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
         c.category() == QChar::Separator_Paragraph;
}

QString blankedAndCut(const std::string& text, qsizetype limit, bool keepLineBreaks) {
  // A character has at most four bytes, so the rest would be cut anyway.
  const auto bytes = std::min<qsizetype>(text.size(), limit * 4 + 4);
  QString shown = QString::fromUtf8(text.data(), bytes);
  if (shown.size() > limit) shown = shown.left(limit - 1) + QChar(0x2026);
  std::replace_if(
      shown.begin(), shown.end(),
      [=](QChar c) { return breaksLayout(c) && !(keepLineBreaks && c == u'\n'); }, QChar(u' '));
  return shown;
}

}  // namespace

QString shownLine(const std::string& text) { return blankedAndCut(text, kLineLimit, false); }

QString shownLines(const std::string& text) { return blankedAndCut(text, kLinesLimit, true); }

QString shownText(const std::string& text) { return blankedAndCut(text, kTextLimit, true); }

QString withoutMnemonics(QString text) { return text.replace(u'&', QStringLiteral("&&")); }

}  // namespace tavrin

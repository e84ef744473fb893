#include "host/sheets/SheetTexts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include "host/document/DocumentName.h"
#include "host/preview/SheetLook.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {

namespace {

struct SheetTexts {
  Q_DECLARE_TR_FUNCTIONS(SheetTexts)
};

constexpr char kNumberPlace[] = "%1";

QString counted(const OptionList& options) {
  return isTwoSided(options) ? SheetTexts::tr("Side %1 of %2") : SheetTexts::tr("Sheet %1 of %2");
}

QString pagesText(const std::vector<int>& pages) {
  if (pages.empty()) return {};
  if (pages.size() == 1) return SheetTexts::tr("page %1").arg(QLocale().toString(pages[0]));
  const QString first = QLocale().toString(pages.front());
  const QString last = QLocale().toString(pages.back());
  return pages.size() == 2 ? SheetTexts::tr("pages %1 and %2").arg(first, last)
                           : SheetTexts::tr("pages %1 to %2").arg(first, last);
}

// Where it need not be said, nothing.
QString nameText(const Sheets& sheets, const SheetPlace& place) {
  if (sheets.documents.size() < 2) return {};
  return shownLine(nameInWords(place.document.document.document));
}

QString sideText(int index, const OptionList& options) {
  if (!isTwoSided(options)) return {};
  const QString sheet = QLocale().toString(index / 2 + 1);
  return (index % 2 ? SheetTexts::tr("back of sheet %1") : SheetTexts::tr("front of sheet %1"))
      .arg(sheet);
}

}  // namespace

QString textBeforeNumber(const OptionList& options) {
  const QString text = counted(options);
  return text.left(text.indexOf(kNumberPlace));
}

QString textAfterNumber(int count, const OptionList& options) {
  const QString text = counted(options);
  const auto after = text.indexOf(kNumberPlace) + qsizetype(sizeof kNumberPlace) - 1;
  return text.mid(after).replace("%2", QLocale().toString(count));
}

QString contentsText(const Sheets& sheets, int index, const OptionList& options) {
  const SheetPlace place = sheets.at(index);
  const int pages = place.document.document.facts.pages;
  const int inReading = placeInReading(place.index, int(place.document.list.size()), options);
  QStringList parts{nameText(sheets, place), sideText(inReading, options),
                    pagesText(pagesOnSheet(inReading + 1, pages, options)),
                    isMirrored(options) ? SheetTexts::tr("mirrored") : QString(),
                    printsInGrey(options) ? SheetTexts::tr("black only") : QString()};
  parts.removeAll(QString());
  return parts.join(SheetTexts::tr(", ", "between the parts of what is on a sheet"));
}

QString sheetText(const Sheets& sheets, int index, const OptionList& options) {
  const QString number =
      counted(options).arg(QLocale().toString(index + 1), QLocale().toString(sheets.count()));
  const QString contents = contentsText(sheets, index, options);
  return contents.isEmpty() ? number
                            : SheetTexts::tr("%1: %2", "sheet, contents").arg(number, contents);
}

}  // namespace tavrin

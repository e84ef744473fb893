#include "host/task/FieldProblems.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include "host/task/ScalingField.h"

namespace tavrin {
namespace {

struct FieldProblems {
  Q_DECLARE_TR_FUNCTIONS(FieldProblems)
};

QString shown(const std::string& text) { return QString::fromStdString(text); }

// "all, odd or even"
QString alternatives(const JobSetting& setting) {
  QStringList values;
  for (const std::string& value : setting.values)
    if (!value.empty()) values << shown(value);
  const QString last = values.takeLast();
  if (values.isEmpty()) return last;
  return FieldProblems::tr("%1 or %2", "values of a setting")
      .arg(values.join(FieldProblems::tr(", ", "between values of a setting")), last);
}

QString lengthOf(int pages) {
  return pages == 1 ? FieldProblems::tr("The document has one page")
                    : FieldProblems::tr("The document has %1 pages").arg(QLocale().toString(pages));
}

}  // namespace

QString problemWith(const JobSetting& setting, const std::string& value) {
  if (setting.option == kPagesPerSheetOption)
    return FieldProblems::tr("A sheet can hold %1 pages, not “%2”.")
        .arg(alternatives(setting), shown(value));
  return FieldProblems::tr("The option “%1” can be %2, not “%3”.")
      .arg(shown(setting.option), alternatives(setting), shown(value));
}

QString problemWithScaling(const OptionList& options) {
  if (const OptString percent = optionValue(options, "scaling"))
    return FieldProblems::tr("Pages can be scaled to 1 to %1 percent, not “%2”.")
        .arg(QString::number(kMostPercent), shown(*percent));
  return FieldProblems::tr("The option “%1” can be %2, not “%3”.")
      .arg(kFitOption, FieldProblems::tr("auto, fit, fill or none"),
           shown(optionValue(options, kFitOption).value_or("")));
}

QString problemWithRange(const QString& range, int documentPages) {
  return FieldProblems::tr("%1; the range “%2” holds none of them.", "the document has pages")
      .arg(lengthOf(documentPages), range);
}

QString problemWithPageSet(const std::string& set, int documentPages) {
  const QString sentence =
      set == "odd" ? FieldProblems::tr("%1; no odd one is among those to print.", "pages")
                   : FieldProblems::tr("%1; no even one is among those to print.", "pages");
  return sentence.arg(lengthOf(documentPages));
}

}  // namespace tavrin

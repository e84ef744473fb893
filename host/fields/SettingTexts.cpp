#include "host/fields/SettingTexts.h"

#include <QCoreApplication>

#include "host/request/JobSetting.h"
#include "host/request/SettingWords.h"

namespace tavrin {
namespace {

struct SettingTexts {
  Q_DECLARE_TR_FUNCTIONS(SettingTexts)
};

}  // namespace

QString byHandText(const std::string& sides) {
  const QString text = valueText(kSidesOption, sides);
  return sides == kOneSided ? text
                            : SettingTexts::tr("%1, by Hand", "two-sided printing").arg(text);
}

QString scalingText(ScalingField::Way way) {
  if (way == ScalingField::Way::percent) return SettingTexts::tr("Percent");
  if (way == ScalingField::Way::asGiven) return SettingTexts::tr("As Given");
  return valueText(kFitOption, fitWord(way));
}

}  // namespace tavrin

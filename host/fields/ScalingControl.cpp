#include "host/fields/ScalingControl.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSpinBox>

#include "host/fields/SettingTexts.h"
#include "host/panes/Widgets.h"
#include "host/task/JobFields.h"

namespace tavrin {
namespace {

using Way = ScalingField::Way;

// "50 %" with the sign where the language has it.
QString withSign(int percent) {
  return ScalingControl::tr("%1 %", "percent").arg(QLocale().toString(percent));
}

}  // namespace

ScalingControl::ScalingControl(JobFields& theFields, const QString& name, QWidget* parent)
    : QWidget(parent),
      fields(theFields),
      ways(makeChild<QComboBox>(this)),
      percent(makeChild<QSpinBox>(this)) {
  ways->setAccessibleName(name);
  ways->setObjectName(kFitOption);
  for (const Way way : {Way::automatic, Way::fit, Way::fill, Way::actualSize, Way::percent})
    ways->addItem(scalingText(way), int(way));
  percent->setObjectName("scaling");
  percent->setAccessibleName(tr("Size in percent"));
  percent->setRange(1, kMostPercent);
  percent->setSuffix(tr(" %", "behind a number"));
  layOut();
  refresh();
  connectParts();
}

void ScalingControl::layOut() {
  letPopUpShrink(*ways);
  auto* line = makeChild<QHBoxLayout>(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(ways, 1);
  line->addWidget(percent);
}

void ScalingControl::connectParts() {
  connect(&fields, &JobFields::suggestionTaken, this, &ScalingControl::refresh);
  connect(&fields, &JobFields::changed, this, &ScalingControl::refresh);
  connect(ways, &QComboBox::activated, this,
          [this] { fields.setScaling(static_cast<Way>(ways->currentData().toInt())); });
  connect(percent, &QSpinBox::valueChanged, &fields, &JobFields::setScalingPercent);
}

// An item of its own while there is something that the others do not say.
void ScalingControl::offerGiven() {
  const int place = ways->findData(int(Way::asGiven));
  const bool isGiven = fields.scaling().hasGiven();
  if (isGiven && place < 0) ways->addItem(scalingText(Way::asGiven), int(Way::asGiven));
  if (!isGiven && place >= 0) ways->removeItem(place);
}

void ScalingControl::refresh() {
  const QSignalBlocker quiet(percent);
  offerGiven();
  ways->setCurrentIndex(ways->findData(int(fields.scaling().way())));
  percent->setValue(fields.scaling().percent());
  percent->setVisible(fields.scaling().way() == Way::percent);
}

QString ScalingControl::summary() const {
  const ScalingField& scaling = fields.scaling();
  if (scaling.way() == Way::percent) return withSign(scaling.percent());
  return scalingText(scaling.way());
}

}  // namespace tavrin

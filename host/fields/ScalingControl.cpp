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
  percent->setToolTip(
      toolTipFor(tr("Of the actual size of a page, or of the largest that fits where the page is "
                    "larger than the paper. Of a picture, always of the largest that fits.")));
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
  percent->setSuffix(suffix());
  percent->setValue(fields.scaling().percent());
  percent->setVisible(fields.scaling().way() == Way::percent);
}

// What a share is measured by, where all documents are alike.
QString ScalingControl::suffix() const {
  switch (fields.contents()) {
    case Contents::pages:
      return tr(" % of actual size", "behind a number");
    case Contents::pictures:
      return tr(" % of what fits", "behind a number");
    case Contents::unknown:
      break;
  }
  return tr(" %", "behind a number");
}

QString ScalingControl::summary() const {
  const Way way = fields.scaling().way();
  return way == Way::percent ? percent->text() : scalingText(way);
}

}  // namespace tavrin

#include "host/general/PaperSizeBoxes.h"

#include <algorithm>
#include <cmath>

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "host/printer/PPDMarks.h"
#include "platform/qt/base/MakeChild.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

constexpr double kPointsOfInch = 72;

// The nearest length that a box can hold and that is not beyond the limit.
double roundedUp(double length, double steps) { return std::ceil(length * steps - 0.01) / steps; }
double roundedDown(double length, double steps) {
  return std::floor(length * steps + 0.01) / steps;
}

}  // namespace

PaperSizeBoxes::PaperSizeBoxes(PPDMarks& theMarks, QWidget* parent)
    : QWidget(parent),
      marks(theMarks),
      unit(unitOfCountry()),
      width(addBox("paperWidth", tr("Width of the paper"))),
      height(addBox("paperHeight", tr("Height of the paper"))) {
  auto* line = makeChild<QHBoxLayout>(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(width);
  line->addWidget(makeChild<QLabel>(tr("×", "between width and height"), this));
  line->addWidget(height);
  line->addStretch();
  refresh();
  connect(&marks, &PPDMarks::refreshed, this, &PaperSizeBoxes::refresh);
}

PaperSizeBoxes::Unit PaperSizeBoxes::unitOfCountry() const {
  if (locale().measurementSystem() == QLocale::ImperialUSSystem)
    return {kPointsOfInch, 2, tr(" in", "behind a length")};
  return {kPointsOfInch / 25.4, 1, tr(" mm", "behind a length")};
}

QDoubleSpinBox* PaperSizeBoxes::addBox(const char* objectName, const QString& name) {
  auto* box = makeChild<QDoubleSpinBox>(this);
  box->setObjectName(objectName);
  box->setAccessibleName(name);
  box->setDecimals(unit.decimals);
  box->setSuffix(unit.suffix);
  box->setKeyboardTracking(false);
  connect(box, &QDoubleSpinBox::valueChanged, this, [this] {
    mark({width->value() * unit.points, height->value() * unit.points});
  });
  return box;
}

void PaperSizeBoxes::refresh() {
  const PaperSize least = leastPaper(marks.ppd());
  const PaperSize most = mostPaper(marks.ppd());
  const PaperSize size = markedPaperSize(marks.ppd());
  show(*width, least.width, most.width, size.width);
  show(*height, least.height, most.height, size.height);
}

// A size that was given beyond the limits is shown all the same.
void PaperSizeBoxes::show(QDoubleSpinBox& box, double least, double most, double points) {
  const QSignalBlocker quiet(box);
  const double steps = std::pow(10, unit.decimals);
  const double length = points / unit.points;
  const double minimum = roundedUp(least / unit.points, steps);
  box.setRange(length > 0 ? std::min(minimum, length) : minimum,
               std::max(roundedDown(most / unit.points, steps), length));
  box.setValue(length);
}

// With numbers that a box can hold.
void PaperSizeBoxes::begin() {
  const PaperSize size = markedPaperSize(marks.ppd());
  const double steps = std::pow(10, unit.decimals);
  const auto round = [&](const QDoubleSpinBox& box, double points) {
    const double length = std::round(points / unit.points * steps) / steps;
    return std::clamp(length, box.minimum(), box.maximum()) * unit.points;
  };
  mark({round(*width, size.width), round(*height, size.height)});
}

void PaperSizeBoxes::mark(PaperSize size) { marks.choose(kPageSizeKey, customPaperChoice(size)); }

QString PaperSizeBoxes::summary() const {
  return tr("%1 × %2", "width and height").arg(width->text(), height->text());
}

}  // namespace tavrin

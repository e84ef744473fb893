#include "host/notes/Headline.h"

#include <QLabel>

#include "host/panes/Widgets.h"

namespace tavrin {
namespace {

constexpr double kScale = 1.4;  // of the usual text

}  // namespace

QLabel* makeHeadline(const QString& words, QWidget* parent) {
  QLabel* headline = makeTextLabel(parent);
  QFont large = parent->font();
  large.setPointSizeF(large.pointSizeF() * kScale);
  large.setBold(true);
  headline->setFont(large);
  headline->setText(words);
  return headline;
}

}  // namespace tavrin

#include "host/panes/BooleanControl.h"

#include "host/panes/OptionControl.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {

BooleanControl::BooleanControl(PPDMarks& theMarks, const ppd_option_t& theOption, QWidget* parent)
    : QCheckBox(parent), marks(theMarks), option(theOption) {
  setObjectName(QString::fromLatin1(option.keyword));
  setText(withoutMnemonics(shownLine(option.text)));
  setAccessibleName(shownLine(option.text));
  refresh();
  connect(&marks, &PPDMarks::refreshed, this, &BooleanControl::refresh);
  connect(this, &QCheckBox::clicked, this,
          [this] { marks.choose(option.keyword, isChecked() ? kBooleanOn : kBooleanOff); });
}

void BooleanControl::refresh() {
  const OptString marked = marks.choice(option.keyword);
  setTristate(!marked);
  setCheckState(!marked                 ? Qt::PartiallyChecked
                : *marked == kBooleanOn ? Qt::Checked
                                        : Qt::Unchecked);
}

}  // namespace tavrin

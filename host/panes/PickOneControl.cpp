#include "host/panes/PickOneControl.h"

#include <set>

#include "host/panes/Widgets.h"
#include "host/printer/MarkedOptions.h"
#include "host/printer/PPDSections.h"
#include "platform/qt/base/ShownText.h"
#include "ppd/PPDRecords.h"

namespace tavrin {

PickOneControl::PickOneControl(PPDMarks& theMarks, const ppd_option_t& theOption, QWidget* parent)
    : QComboBox(parent), marks(theMarks), option(theOption) {
  setObjectName(QString::fromLatin1(option.keyword));
  setAccessibleName(shownLine(option.text));
  setPlaceholderText(tr("Not chosen"));
  refresh();
  letPopUpShrink(*this);
  connect(&marks, &PPDMarks::refreshed, this, &PickOneControl::refresh);
  connect(this, &QComboBox::activated, this,
          [this](int index) { take(itemData(index).toString()); });
}

void PickOneControl::offerCustom() {
  offersCustom = true;
  fill();
  refresh();
  letPopUpShrink(*this);
}

// The mark alone would not say which value.
void PickOneControl::take(const QString& keyword) {
  if (offersCustom && isCustomChoice(keyword.toStdString())) return emit customWanted();
  marks.choose(option.keyword, keyword.toStdString());
}

void PickOneControl::fill() {
  clear();
  std::set<QString> seen;
  for (const ppd_choice_t* choice : pickableChoices(option, marks.ppd())) {
    if (offersCustom && isCustomChoice(choice->choice)) continue;
    const QString text = shownLine(choice->text);
    const QString keyword = QString::fromUtf8(choice->choice);
    const bool isTwin = !seen.insert(text).second;
    addItem(isTwin ? tr("%1 (%2)", "choice and its keyword").arg(text, keyword) : text, keyword);
  }
  for (const ppd_choice_t& choice : choicesOf(option))
    if (offersCustom && isCustomChoice(choice.choice))
      addItem(tr("%1…", "a value to be asked for").arg(shownLine(choice.text)), choice.choice);
}

void PickOneControl::refresh() {
  const OptString marked = marks.choice(option.keyword);
  const QString keyword = QString::fromStdString(marked.value_or(""));
  if (count() == 0 || (marked && findData(keyword) < 0)) fill();
  setCurrentIndex(marked ? findData(keyword) : -1);
}

}  // namespace tavrin

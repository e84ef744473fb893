#include "host/panes/FeaturesPane.h"

#include <algorithm>

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "host/panes/OptionControl.h"
#include "host/panes/Widgets.h"
#include "host/printer/JobSettings.h"
#include "host/printer/MarkedOptions.h"
#include "platform/qt/base/ShownText.h"
#include "platform/text/IgnoringCase.h"

namespace tavrin {

namespace {

// More rows than anybody looks through at a time, and few enough to be made at once.
constexpr std::size_t kMostRows = 60;

void addPages(std::vector<PPDSection>& pages, const PPDSection& section) {
  for (std::size_t first = 0; first < section.options.size(); first += kMostRows) {
    const auto from = section.options.begin() + static_cast<std::ptrdiff_t>(first);
    const auto count = std::min(kMostRows, section.options.size() - first);
    const std::string number = first == 0 ? "" : " (" + std::to_string(first / kMostRows + 1) + ")";
    pages.push_back({section.keyword,
                     section.title + number,
                     {from, from + static_cast<std::ptrdiff_t>(count)}});
  }
}

}  // namespace

std::vector<PPDSection> featureSections(const ppd_file_t& ppd,
                                        const std::set<std::string>& shownElsewhere) {
  std::vector<PPDSection> pages;
  std::set<std::string, LessIgnoringCase> seen(shownElsewhere.begin(), shownElsewhere.end());
  for (PPDSection section : sectionsOf(ppd)) {
    if (isInstalledOptions(section.keyword)) continue;
    std::erase_if(section.options, [&](const ppd_option_t* option) {
      return option->num_choices == 0 || isJobSetting(option->keyword) ||
             !seen.insert(option->keyword).second;
    });
    addPages(pages, section);
  }
  return pages;
}

FeaturesPane::FeaturesPane(PPDMarks& theMarks, const std::set<std::string>& shownElsewhere,
                           QWidget* parent)
    : Pane(tr("Printer Features"), parent),
      marks(theMarks),
      sections(featureSections(theMarks.ppd(), shownElsewhere)),
      column(makeChild<QVBoxLayout>(this)) {
  column->setContentsMargins(0, 0, 0, 0);
  if (sections.size() > 1) addGroupPopUp();
}

void FeaturesPane::addGroupPopUp() {
  auto* top = makeChild<QWidget>(this);
  auto* popUp = makeChild<QComboBox>(top);
  popUp->setObjectName("featureGroup");
  for (const PPDSection& section : sections) popUp->addItem(shownLine(section.title));
  letPopUpShrink(*popUp);
  addRow(*makeForm(top), tr("Feature S&et:"), *popUp);
  column->addWidget(top);
  connect(popUp, &QComboBox::currentIndexChanged, this, &FeaturesPane::showSection);
}

void FeaturesPane::willShow() {
  if (!page && !sections.empty()) showSection(0);
}

void FeaturesPane::showSection(int index) {
  const std::unique_ptr<QWidget> old(page);
  page = makeChild<QWidget>(this);
  QFormLayout* form = makeForm(page);
  for (const ppd_option_t* option : sections[static_cast<std::size_t>(index)].options) {
    QWidget* control = makeOptionControl(marks, *option, page);
    if (isBoolean(*option))
      form->addRow(makeChild<QLabel>(page), control);  // empty, and as high as the others
    else
      addRow(*form, tr("%1:").arg(withoutMnemonics(shownLine(option->text))), *control);
  }
  column->addWidget(page);
  page->show();
  emit laidOutAnew();
}

Pane::Lines FeaturesPane::summary() const {
  Lines lines;
  for (const PPDSection& section : sections)
    for (const ppd_option_t* option : section.options)
      if (const OptString text = marks.choiceText(option->keyword))
        lines.emplace_back(shownLine(option->text), shownLine(*text));
  return lines;
}

}  // namespace tavrin

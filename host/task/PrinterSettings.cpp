#include "host/task/PrinterSettings.h"

#include <utility>

#include "host/printer/JobSettings.h"
#include "host/printer/MarkedOptions.h"
#include "host/printer/Paper.h"
#include "host/request/JobOptions.h"
#include "host/support/TextLists.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {

std::string inOneText(std::vector<std::string> sentences) {
  std::erase(sentences, "");
  return joined(sentences, " ");
}

bool namesPaper(const OptionList& options) {
  for (const char* name : {kPageSizeKey, "PageRegion", kPaperOption})
    if (optionValue(options, name)) return true;
  return false;
}

void PrinterSettings::choose(const std::string& name, OptionList options) {
  destination = name;
  given = std::move(options);
  suggestFields();
}

// What the printer has itself by the name of a field is a choice of its PPD.
void PrinterSettings::suggestFields() {
  OptionList ofEveryJob = given;
  if (current)
    std::erase_if(ofEveryJob, [this](const auto& option) {
      return isPrintersOwn(current->ppd(), option.first);
    });
  problem = fields.suggest(asked, ofEveryJob).toStdString();
}

std::string PrinterSettings::begin(const SharedPPD& ppd) {
  current = std::make_unique<PrinterSession>(ppd);
  return restart();
}

std::string PrinterSettings::restart() {
  suggestFields();
  current->setPagesPerSheet(fields.pagesPerSheet());
  const auto before = kept.find(destination);
  const bool isNew = before == kept.end();
  std::vector<std::string> problems =
      isNew ? current->markAnew(given)
            : current->markAnew(before->second.options, before->second.unmarked);
  problems.push_back(problem);
  usualPaper = isNew && !namesPaper(given) ? current->marks().choice(kPageSizeKey) : OptString();
  return inOneText(problems);
}

std::string PrinterSettings::keep() {
  if (!current) return {};
  std::string why = current->takePanelChoices();
  kept[destination] = {withMarks(given, current->ppd()), optionsWithoutMark(current->ppd())};
  return why;
}

OptString PrinterSettings::takePaper(const DocumentFacts& document) {
  if (!current || !usualPaper) return {};
  PPDMarks& marks = current->marks();
  const bool isUsual = marks.choice(kPageSizeKey) == std::exchange(usualPaper, {});
  const OptString paper = paperOfSize(current->ppd(), {document.width, document.height});
  const bool isAnother = paper && !marks.isMarked(kPageSizeKey, *paper);
  if (!isUsual || !isPDF(document.format) || !isAnother) return {};
  marks.choose(kPageSizeKey, *paper);
  return marks.choiceText(kPageSizeKey);
}

OptionList PrinterSettings::options() const {
  OptionList all = given;
  // The fields have taken these.
  for (const std::string& name : JobFields::optionNames()) removeOption(all, name);
  for (const auto& [name, value] : fields.options()) setOption(all, name, value);
  if (current && isPrintersOwn(current->ppd(), "Collate")) removeOption(all, kCollateOption);
  return all;
}

}  // namespace tavrin

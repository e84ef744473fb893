#include "host/pages/TaskInWords.h"

#include <algorithm>
#include <numeric>

#include <QCoreApplication>

#include "host/prepare/Imposition.h"
#include "host/printer/CustomPaper.h"
#include "host/request/JobInWords.h"
#include "host/request/SheetCount.h"
#include "host/task/PrintTask.h"
#include "platform/qt/base/ShownText.h"
#include "ppd/PPDKeywords.h"

namespace tavrin {
namespace {

struct TaskInWords {
  Q_DECLARE_TR_FUNCTIONS(TaskInWords)
};

// Empty where the printer has no such option, or is as it usually is.
QString unusualChoice(const PPDMarks& marks, const char* keyword) {
  const ppd_option_t* option = marks.option(keyword);
  if (!option || sameText(marks.choice(keyword), OptString(option->defchoice))) return {};
  return shownLine(marks.choiceText(keyword).value_or(""));
}

// "A4", "A4 (Glossy Photo)"
QString paperInWords(const PPDMarks& marks) {
  const QString size = markedCustomPaper(marks.ppd())
                           ? TaskInWords::tr("paper of a custom size")
                           : shownLine(marks.choiceText(kPageSizeKey).value_or(""));
  const QString type = unusualChoice(marks, kPaperTypeKey);
  if (size.isEmpty() || type.isEmpty()) return size + type;
  return TaskInWords::tr("%1 (%2)", "size and type of paper").arg(size, type);
}

// How many pages come one after the other on the sheets of one job.
std::vector<int> pagesOfJobs(const std::vector<DocumentFacts>& documents,
                             const OptionList& options) {
  std::vector<int> pages(documents.size());
  std::ranges::transform(documents, pages.begin(), &DocumentFacts::pages);
  const bool areKnown = std::ranges::find(pages, 0) == pages.end();
  if (!areKnown || !goTogether(documents, options)) return pages;
  return {std::reduce(pages.begin(), pages.end())};
}

JobScope scopeOf(const PrintTask& task, const OptionList& options) {
  const std::vector<DocumentFacts>& documents = task.documents().all();
  const std::vector<int> pages = pagesOfJobs(documents, options);
  JobScope scope{.documents = static_cast<int>(documents.size()),
                 .contents = task.fields().contents()};
  if (std::ranges::find(pages, 0) == pages.end())
    scope.pages = std::reduce(pages.begin(), pages.end());
  if (!task.session()) return scope;
  scope.sheets = sheetCount(pages, options);
  scope.paper = paperInWords(task.session()->marks());
  return scope;
}

}  // namespace

QString contentsInWords(const PrintTask& task) {
  const bool hasPrinter = task.printers().chosen() || task.target() != PrintTask::Target::queue;
  const OptionList options = hasPrinter ? task.options() : task.fields().options();
  return jobInWords(options, scopeOf(task, options));
}

QString taskInWords(const PrintTask& task) {
  const QString contents = contentsInWords(task);
  if (task.target() == PrintTask::Target::file)
    return TaskInWords::tr("%1, saved as a PDF").arg(contents);
  const QString printer = shownLine(task.printerName());
  return printer.isEmpty() ? contents : TaskInWords::tr("%1, with %2").arg(contents, printer);
}

}  // namespace tavrin

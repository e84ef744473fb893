#include "host/impose/program/JoinedPages.h"

#include <list>

#include "host/impose/pictures/Trouble.h"

namespace tavrin {

namespace {

constexpr int kQuarter = 90;

void turnPages(const QPDFPageDocumentHelper& document, const std::string& turns) {
  std::vector<QPDFPageObjectHelper> pages = QPDFPageDocumentHelper(document).getAllPages();
  if (pages.size() != turns.size())
    throw Trouble(Status::damaged, "There are " + std::to_string(pages.size()) +
                                       " pages, and turns of " + std::to_string(turns.size()) +
                                       ".");
  for (std::size_t page = 0; page < pages.size(); ++page)
    pages[page].rotatePage((turns[page] - '0') * kQuarter, false);
}

}  // namespace

void joinPages(const std::vector<NamedDocument>& documents, const std::string& turns,
               Pipeline& output) {
  std::list<QPDF> sources;  // which live until all is written
  for (const NamedDocument& document : documents) {
    QPDF& source = sources.emplace_back();
    source.setSuppressWarnings(true);
    source.processFile(document.file.c_str());
  }
  QPDF& joined = sources.front();
  QPDFPageDocumentHelper all(joined);
  for (auto next = ++sources.begin(); next != sources.end(); ++next)
    for (const QPDFPageObjectHelper& page : QPDFPageDocumentHelper(*next).getAllPages())
      all.addPage(page, false);
  turnPages(all, turns);
  QPDFWriter writer(joined);
  writer.setOutputPipeline(&output);
  writer.setDeterministicID(true);
  writer.write();
}

}  // namespace tavrin

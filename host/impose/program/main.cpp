// tavrin-impose: puts the pages of documents on sheets, for printing them as they are.

#include <clocale>
#include <fstream>
#include <memory>
#include <new>
#include <string>
#include <utility>

#include <QCoreApplication>
#include <nlohmann/json.hpp>

#include "host/impose/pages/OpenPages.h"
#include "host/impose/pictures/Trouble.h"
#include "host/impose/program/DocumentPages.h"
#include "host/impose/program/FatalSignals.h"
#include "host/impose/program/ImposeArguments.h"
#include "host/impose/program/JoinedPages.h"
#include "host/impose/program/OutputPipe.h"
#include "host/impose/program/SheetWriter.h"
#include "platform/files/StandardStreams.h"

namespace {

using namespace tavrin;

std::unique_ptr<PageSource> open(const NamedDocument& document) {
  auto pages = openPages(document.format, document.file);
  if (pages->count() == 0) throw Trouble(Status::noPages, "The document has no pages.");
  return pages;
}

std::string description(const NamedDocument& document) {
  auto source = open(document);
  const bool isStoredOtherwise = source->isStoredOtherwise();
  DocumentPages pages;
  pages.add(std::move(source));
  std::vector<int> wide;
  for (int page = 0; const PageLook& look : pages.looks())
    if (++page; look.size.width > look.size.height) wide.push_back(page);
  const Size size = pages.looks().front().size;
  nlohmann::ordered_json text;
  text["pages"] = pages.looks().size();
  text["width"] = size.width;
  text["height"] = size.height;
  text["wide"] = wide;
  text["storedOtherwise"] = isStoredOtherwise;
  return text.dump() + "\n";
}

void look(const ImposeArguments& wish) {
  const std::string problem = writeOutput(description(wish.documents.front()));
  if (!problem.empty())
    throw Trouble(Status::notWritten, "Standard output cannot be written: " + problem + ".");
}

// How many quarters of a circle clockwise bring what lies like that upright.
char quarters(Turn turn) {
  switch (turn) {
    case Turn::left:
      return '1';
    case Turn::upsideDown:
      return '2';
    case Turn::right:
      return '3';
    case Turn::upright:
      break;
  }
  return '0';
}

void writeTurns(const std::vector<Sheet>& sheets, const std::filesystem::path& file) {
  std::ofstream stream(file);
  for (const Sheet& sheet : sheets) stream << quarters(sheet.turn);
  if (!stream.flush()) throw Trouble(Status::notWritten, "The sheets' turns cannot be written.");
}

void impose(const ImposeArguments& wish) {
  DocumentPages pages;
  for (const NamedDocument& document : wish.documents) pages.add(open(document));
  const auto sheets =
      imposed(pages.looks(), wish.paper, layoutOptions(wish.options), wish.wholeSheets);
  if (sheets.empty())
    throw Trouble(Status::noPages, "None of the pages that were asked for is in the document.");
  if (!wish.turns.empty()) writeTurns(sheets, wish.turns);
  OutputPipe output;
  writeSheets(sheets, wish.paper.size, pages, output);
  output.finish();
  output.check();
}

void join(const ImposeArguments& wish) {
  OutputPipe output;
  joinPages(wish.documents, wish.join, output);
  output.finish();
  output.check();
}

int complain(Status status, const std::string& sentence) {
  writeError("tavrin-impose", sentence);
  return static_cast<int>(status);
}

}  // namespace

int main(int argc, char** argv) try {
  occupyStandardStreams();
  endWellOnFatalSignals();
  const QCoreApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");  // numbers in files are the same everywhere
  const auto wish = imposeArguments({argv + 1, argv + argc});
  if (!wish) return complain(Status::usage, wish.reason());
  wish->look ? look(*wish) : wish->join.empty() ? impose(*wish) : join(*wish);
  return static_cast<int>(Status::done);
} catch (const Trouble& trouble) {
  return complain(trouble.status(), trouble.what());
} catch (const std::bad_alloc&) {
  return complain(Status::damaged, "There is not enough memory for the document.");
} catch (const std::exception& problem) {
  return complain(Status::damaged, std::string("The document cannot be read: ") + problem.what());
}

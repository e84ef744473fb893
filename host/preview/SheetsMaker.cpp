#include "host/preview/SheetsMaker.h"

#include <utility>

namespace tavrin {

SheetsMaker::SheetsMaker(Preparation preparation, QObject* parent)
    : QObject(parent), wanted(std::move(preparation)), preparer(wanted) {
  sheets.options = wanted.options;
  connect(&preparer, &DocumentPreparer::failed, this, &SheetsMaker::failed);
  connect(&preparer, &DocumentPreparer::nothingLeft, this, &SheetsMaker::nothingLeft);
  connect(&preparer, &DocumentPreparer::prepared, this,
          [this](const std::vector<PreparedDocument>& documents) {
            prepared = documents;
            layOutNext();
          });
}

void SheetsMaker::layOutNext() {
  if (sheets.documents.size() == prepared.size()) return emit made(sheets);
  const PreparedDocument& next = prepared[sheets.documents.size()];
  const std::string title = wanted.title.empty() ? documentName(next.document) : wanted.title;
  maker = std::make_unique<SheetMaker>(next, wanted.ppd, wanted.paper, title);
  connect(maker.get(), &SheetMaker::failed, this, &SheetsMaker::failed);
  connect(maker.get(), &SheetMaker::nothingLeft, this, [this] {
    emit nothingLeft(
        tr("With these settings nothing comes out of the printer: no page of the "
           "document is left to print."));
  });
  connect(maker.get(), &SheetMaker::made, this, [this](const LaidOutDocument& made) {
    sheets.documents.push_back(made);
    layOutNext();
  });
  maker->start();
}

}  // namespace tavrin

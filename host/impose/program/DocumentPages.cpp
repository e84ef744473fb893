#include "host/impose/program/DocumentPages.h"

#include <utility>

namespace tavrin {

void DocumentPages::add(std::unique_ptr<PageSource> document) {
  for (int page = 0; page < document->count(); ++page) {
    places.push_back({document.get(), page});
    itsLooks.push_back(document->look(page));
  }
  documents.push_back(std::move(document));
}

Drawing DocumentPages::draw(int page, QPDF& output) const {
  return places[page].document->draw(places[page].page, output);
}

}  // namespace tavrin

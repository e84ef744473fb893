#pragma once

#include <memory>
#include <vector>

#include "host/impose/pages/PageSource.h"

namespace tavrin {

// The pages of several documents, counted through.
class DocumentPages {
 public:
  void add(std::unique_ptr<PageSource> document);

  const std::vector<PageLook>& looks() const { return itsLooks; }
  Drawing draw(int page, QPDF& output) const;

 private:
  struct Place {
    PageSource* document;
    int page;
  };

  std::vector<std::unique_ptr<PageSource>> documents;
  std::vector<Place> places;
  std::vector<PageLook> itsLooks;
};

}  // namespace tavrin

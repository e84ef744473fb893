#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "host/prepare/DocumentPreparer.h"
#include "host/preview/SheetList.h"

namespace tavrin {

// A document as it comes out of a printer: a PDF with a page for each side of paper.
struct LaidOutDocument {
  PreparedDocument document;
  std::shared_ptr<const HiddenFolder> folder;  // holds the PDF
  std::filesystem::path pdf;
  std::vector<Sheet> list;
};

// One of its sheets.
struct SheetPlace {
  const LaidOutDocument& document;
  int index;  // in the document
};

// All that comes out of a printer, one document after the other.
struct Sheets {
  std::vector<LaidOutDocument> documents;
  OptionList options;  // that they were made with, as the person set them

  int count() const {
    std::size_t sum = 0;
    for (const LaidOutDocument& document : documents) sum += document.list.size();
    return static_cast<int>(sum);
  }
  // The sheet with that index, of which there is one.
  SheetPlace at(int index) const {
    auto document = documents.begin();
    for (; index >= static_cast<int>(document->list.size()); ++document)
      index -= static_cast<int>(document->list.size());
    return {*document, index};
  }
};

}  // namespace tavrin

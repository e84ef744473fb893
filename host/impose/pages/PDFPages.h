#pragma once

#include <filesystem>
#include <vector>

#include "host/impose/pages/PageSource.h"
#include "host/impose/pages/Qpdf.h"

namespace tavrin {

// The pages of a PDF as a reader shows them, with what is filled into forms and with those
// annotations that are meant for paper. All pages are drawn on one output.
class PDFPages : public PageSource {
 public:
  // Reads the file; throws Trouble.
  explicit PDFPages(const std::filesystem::path& file);

  int count() const override { return static_cast<int>(pages.size()); }
  PageLook look(int page) const override;
  bool isStoredOtherwise() const override;
  Drawing draw(int page, QPDF& output) override;

 private:
  void prepare(QPDF& output);

  QPDF pdf;
  std::vector<QPDFPageObjectHelper> pages;
  bool isPrepared = false;
};

}  // namespace tavrin

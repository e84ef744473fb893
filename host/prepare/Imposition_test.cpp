#include "host/prepare/Imposition.h"

#include <gtest/gtest.h>

namespace tavrin {
namespace {

DocumentFacts facts(const std::string& format, int pages) {
  DocumentFacts document;
  document.format = format;
  document.pages = pages;
  return document;
}

DocumentFacts pdf() { return facts("application/pdf", 8); }
DocumentFacts widePDF() {
  DocumentFacts wide = pdf();
  wide.widePages = {1, 2, 3, 4, 5, 6, 7, 8};
  return wide;
}
DocumentFacts picture(const std::string& kind = "jpeg") { return facts("image/" + kind, 1); }
DocumentFacts text() { return facts("text/plain", 0); }

// A row of a table: options, and which of the documents are imposed for them: P is a PDF, W one
// with pages that are wider than high, I an image, T a text.
struct Wish {
  OptionList options;
  std::string imposed;
};

void expectImposed(const std::vector<Wish>& table) {
  for (const auto& [options, expected] : table) {
    std::string imposed;
    if (mustBeImposed(pdf(), options)) imposed += 'P';
    if (mustBeImposed(widePDF(), options)) imposed += 'W';
    if (mustBeImposed(picture(), options)) imposed += 'I';
    if (mustBeImposed(text(), options)) imposed += 'T';
    std::string wish;
    for (const auto& [name, value] : options) wish += name + "=" + value + " ";
    EXPECT_EQ(imposed, expected) << wish;
  }
}

TEST(Imposition, LeavesAloneWhatTheFiltersDoRight) {
  expectImposed({{{}, ""},
                 {{{"Mirror", "True"}, {"PageSize", "A5"}, {"outputorder", "reverse"}}, ""},
                 {{{"page-set", "all"}}, ""},
                 {{{"number-up", "1"}}, ""},
                 {{{"booklet", "false"}}, ""},
                 {{{"Booklet", "No"}}, ""},
                 {{{"landscape", "false"}}, ""},
                 {{{"position", "center"}}, ""},
                 {{{"print-scaling", "fill"}}, ""},
                 {{{"print-scaling", "none"}}, ""},
                 {{{"fit-to-page", "true"}}, ""}});
}

TEST(Imposition, ScalesPDFsAndEnlargesPictures) {
  expectImposed({{{{"scaling", "50"}}, "PWT"},
                 {{{"scaling", "150"}}, "PWIT"},
                 {{{"natural-scaling", "100"}}, "PWIT"},
                 {{{"ppi", "300"}}, "I"}});
}

TEST(Imposition, PutsPagesWhereThePersonWantsThem) {
  expectImposed({{{{"position", "top-left"}}, "T"},
                 {{{"position", "top-left"}, {"print-scaling", "none"}}, "IT"},
                 {{{"position", "top-left"}, {"print-scaling", "fit"}}, "PWT"},
                 {{{"position", "top-left"}, {"scaling", "50"}}, "PWT"},
                 {{{"position", "center"}, {"print-scaling", "fit"}}, ""}});
}

TEST(Imposition, TurnsWhatTheFiltersDoNotTurn) {
  expectImposed({{{{"orientation-requested", "3"}}, "WI"},
                 {{{"orientation-requested", "4"}}, "PWI"},
                 {{{"landscape", "true"}}, "PWI"}});
}

TEST(Imposition, CountsTheDocumentsPagesInPlaceOfSheets) {
  expectImposed({{{{"page-ranges", "2-3"}}, "T"},
                 {{{"page-set", "even"}}, "T"},
                 {{{"number-up", "2"}}, "WI"},
                 {{{"number-up", "2"}, {"page-ranges", "2-3"}}, "PWIT"},
                 {{{"number-up", "2"}, {"page-set", "odd"}}, "PWIT"},
                 {{{"number-up", "2"}, {"position", "top"}}, "PWIT"},
                 {{{"number-up", "2"}, {"orientation-requested", "4"}}, "PWIT"},
                 {{{"booklet", "true"}}, "WI"},
                 {{{"booklet", "true"}, {"page-ranges", "1-4"}}, "PWIT"}});
}

TEST(Imposition, TheLetterCaseOfNamesAndValuesDoesNotCount) {
  expectImposed({{{{"Page-Set", "ALL"}}, ""}, {{{"Page-Set", "EVEN"}}, "T"}});
}

TEST(Imposition, LeavesRawDocumentsAlone) {
  expectImposed({{{{"raw", "true"}, {"scaling", "150"}, {"number-up", "2"}}, ""}});
}

TEST(Imposition, LeavesDocumentsAloneThatItCannotRead) {
  EXPECT_FALSE(mustBeImposed(facts("application/postscript", 0), {{"scaling", "150"}}));
}

TEST(Imposition, BringsPicturesIntoAFormatThatTheFiltersRead) {
  for (const char* kind : {"jpeg", "png", "gif", "tiff", "x-portable-anymap"})
    EXPECT_FALSE(mustBeImposed(picture(kind), {})) << kind;
  for (const char* kind : {"webp", "heif", "bmp"})
    EXPECT_TRUE(mustBeImposed(picture(kind), {})) << kind;
}

TEST(Imposition, TurnsPicturesAsTheirCameraWants) {
  DocumentFacts turned = picture();
  turned.isStoredOtherwise = true;
  EXPECT_TRUE(mustBeImposed(turned, {}));
}

TEST(Imposition, TakesAllPagesOfAPicture) {
  DocumentFacts fax = picture("tiff");
  fax.pages = 3;
  EXPECT_TRUE(mustBeImposed(fax, {}));
  DocumentFacts damaged = picture();
  damaged.pages = 0;
  EXPECT_TRUE(mustBeImposed(damaged, {})) << "so that somebody says so";
  DocumentFacts unknown = damaged;
  unknown.problem = "It is in a pipe.";
  EXPECT_FALSE(mustBeImposed(unknown, {}));
  EXPECT_TRUE(mustBeImposed(unknown, {{"page-ranges", "2"}}));
}

TEST(Imposition, OnlySeveralPicturesGoTogether) {
  const OptionList together{{"multiple-document-handling", "single-document"}};
  const std::vector<DocumentFacts> pictures{picture(), picture("png")};
  EXPECT_TRUE(goTogether(pictures, together));
  EXPECT_FALSE(goTogether(pictures, {}));
  EXPECT_FALSE(
      goTogether(pictures, {{"multiple-document-handling", "separate-documents-collated-copies"}}));
  EXPECT_FALSE(goTogether({picture()}, together)) << "it is alone";
  EXPECT_FALSE(goTogether({picture(), pdf()}, together));
  OptionList raw = together;
  setOption(raw, "raw", "true");
  EXPECT_FALSE(goTogether(pictures, raw));
}

TEST(Imposition, WhatIsDoneIsNotDoneAgain) {
  const OptionList options{{"number-up", "4"},
                           {"number-up-layout", "btrl"},
                           {"page-border", "single"},
                           {"Mirror", "True"},
                           {"Page-Ranges", "1-3"},
                           {"page-set", "odd"},
                           {"booklet", "true"},
                           {"landscape", "true"},
                           {"orientation-requested", "4"},
                           {"scaling", "50"},
                           {"natural-scaling", "50"},
                           {"ppi", "300"},
                           {"position", "top"},
                           {"fit-to-page", "true"},
                           {"document-format", "image/jpeg"},
                           {"outputorder", "reverse"},
                           {"copies", "2"}};
  // What a queue does by default is not done either.
  EXPECT_EQ(optionsOnceImposed(options), (OptionList{{"Mirror", "True"},
                                                     {"outputorder", "reverse"},
                                                     {"copies", "2"},
                                                     {"page-ranges", "1-"},
                                                     {"page-set", "all"},
                                                     {"number-up", "1"},
                                                     {"page-border", "none"},
                                                     {"booklet", "false"},
                                                     {"orientation-requested", "3"},
                                                     {"print-scaling", "none"},
                                                     {"position", "center"}}));
}

TEST(Imposition, ATextIsWrittenInItsOrientationFirst) {
  const OptionList options{
      {"orientation-requested", "4"}, {"landscape", "true"}, {"number-up", "2"},
      {"page-ranges", "1"},           {"scaling", "50"},     {"PageSize", "A4"}};
  EXPECT_EQ(
      optionsOfText(options),
      (OptionList{{"orientation-requested", "4"}, {"landscape", "true"}, {"PageSize", "A4"}}));
}

TEST(Imposition, TextsKeepAwayFromTheEdgeOfPaperWithoutMargins) {
  Paper paper;
  EXPECT_EQ(
      withTextMargins({{"page-top", "9"}}, paper),
      (OptionList{
          {"page-top", "9"}, {"page-left", "36"}, {"page-right", "36"}, {"page-bottom", "36"}}));
  paper.margins = {9, 9, 9, 9};
  EXPECT_EQ(withTextMargins({}, paper), OptionList());
}

}  // namespace
}  // namespace tavrin

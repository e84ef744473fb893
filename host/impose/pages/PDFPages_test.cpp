#include "host/impose/pages/PDFPages.h"

#include <cmath>
#include <optional>

#include <gtest/gtest.h>

#include "host/impose/pictures/Trouble.h"
#include "tests/fakes/FakePDF.h"
#include "tests/fixtures/TemporaryFolder.h"

namespace tavrin {
namespace {

class PDFPagesTest : public testing::Test {
 protected:
  // A document of one page with these entries; objects from 5 on may be added.
  std::filesystem::path document(const std::string& page, const std::string& contents = "",
                                 const std::vector<std::string>& more = {},
                                 const std::string& catalogue = "") {
    std::vector<std::string> objects{
        "<</Type/Catalog/Pages 2 0 R" + catalogue + ">>", "<</Type/Pages/Kids[3 0 R]/Count 1>>",
        "<</Type/Page/Parent 2 0 R/Contents 4 0 R" + page + ">>", pdfStream(contents)};
    objects.insert(objects.end(), more.begin(), more.end());
    return place.write("document.pdf", pdfOf(objects));
  }

  std::string sizeOf(const std::string& page) {
    const Size size = PDFPages(document(page)).look(0).size;
    return std::to_string(std::lround(size.width)) + "x" + std::to_string(std::lround(size.height));
  }

  std::optional<Status> troubleWith(const std::string& bytes) {
    try {
      PDFPages pages(place.write("document.pdf", bytes));
      return std::nullopt;
    } catch (const Trouble& trouble) {
      return trouble.status();
    }
  }

  test::TemporaryFolder place;
  QPDF output;
};

TEST_F(PDFPagesTest, AreAsLargeAsAReaderShowsThem) {
  EXPECT_EQ(sizeOf("/MediaBox[0 0 300 400]"), "300x400");
  EXPECT_EQ(sizeOf("/MediaBox[-100 -50 200 350]"), "300x400");
  EXPECT_EQ(sizeOf("/MediaBox[300 400 0 0]"), "300x400");
  EXPECT_EQ(sizeOf("/MediaBox[0 0 300 400]/Rotate 90"), "400x300");
  EXPECT_EQ(sizeOf("/MediaBox[0 0 300 400]/Rotate -90"), "400x300");
  EXPECT_EQ(sizeOf("/MediaBox[0 0 300 400]/Rotate 180"), "300x400");
  EXPECT_EQ(sizeOf("/MediaBox[0 0 300 400]/UserUnit 2"), "600x800");
  EXPECT_EQ(sizeOf("/MediaBox[0 0 300 400]/CropBox[50 50 150 250]"), "100x200");
  EXPECT_EQ(sizeOf("/MediaBox[0 0 300 400]/CropBox[200 50 999 250]"), "100x200");
}

TEST_F(PDFPagesTest, HaveSomeSizeWhateverTheirBoxesSay) {
  EXPECT_EQ(sizeOf(""), "612x792");
  EXPECT_EQ(sizeOf("/MediaBox[0 0 0 0]"), "612x792");
  EXPECT_EQ(sizeOf("/MediaBox[(a) 0 300 400]"), "612x792");
  EXPECT_EQ(sizeOf("/MediaBox[0 0 1e30 400]"), "612x792");
  EXPECT_EQ(sizeOf("/MediaBox[0 0 300 400]/CropBox[900 900 950 950]"), "300x400");
  EXPECT_EQ(sizeOf("/MediaBox[0 0 300 400]/Rotate 45/UserUnit -1"), "300x400");
}

// Where the lower left corner of the page's own coordinates comes to lie on the page as it is
// shown.
std::string origin(const Drawing& drawing, double x, double y) {
  const Point point = mapped(drawing.toUnitSquare, Point{x, y});
  return std::to_string(std::lround(point.x * 100)) + "," +
         std::to_string(std::lround(point.y * 100));
}

TEST_F(PDFPagesTest, AreDrawnAsTheyAreShown) {
  output.emptyPDF();
  const auto corner = [&](const std::string& turn) {
    PDFPages pages(document("/MediaBox[100 200 300 600]" + turn));
    return origin(pages.draw(0, output), 100, 200);
  };
  EXPECT_EQ(corner(""), "0,0");
  EXPECT_EQ(corner("/Rotate 90"), "0,100");
  EXPECT_EQ(corner("/Rotate 180"), "100,100");
  EXPECT_EQ(corner("/Rotate 270"), "100,0");
}

std::string contentsOf(const Drawing& drawing) {
  QPDFObjectHandle form = drawing.object;
  const auto buffer = form.getStreamData();
  return {reinterpret_cast<const char*>(buffer->getBuffer()), buffer->getSize()};
}

TEST_F(PDFPagesTest, HaveTheAnnotationsThatAreForPaper) {
  const std::string look = pdfStream("0 0 9 9 re f", "/Type/XObject/Subtype/Form/BBox[0 0 9 9]");
  const auto note = [](const std::string& flags) {
    return "<</Type/Annot/Subtype/Square/Rect[10 10 19 19]/AP<</N 7 0 R>>/F " + flags + ">>";
  };
  output.emptyPDF();
  const auto drawn = [&](const std::string& flags) {
    PDFPages pages(
        document("/MediaBox[0 0 90 90]/Annots[5 0 R]", "Q", {note(flags), "null", look}));
    return contentsOf(pages.draw(0, output)).find(" Do") != std::string::npos;
  };
  EXPECT_TRUE(drawn("4")) << "to be printed";
  EXPECT_FALSE(drawn("0")) << "for the screen";
  EXPECT_FALSE(drawn("6")) << "hidden";
}

TEST_F(PDFPagesTest, HaveWhatIsFilledIn) {
  const std::string field =
      "<</Type/Annot/Subtype/Widget/FT/Tx/T(name)/V(Ada)/F 4/Rect[20 40 180 60]/DA(/H 12 Tf)/P 3 0 "
      "R>>";
  PDFPages pages(document("/MediaBox[0 0 200 90]/Annots[5 0 R]", "",
                          {field, "<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>"},
                          "/AcroForm<</Fields[5 0 R]/NeedAppearances true/DA(/H 12 Tf)"
                          "/DR<</Font<</H 6 0 R>>>>>>"));
  output.emptyPDF();
  pages.draw(0, output);
  std::string all;
  for (QPDFObjectHandle& object : output.getAllObjects())
    if (object.isStream()) all += contentsOf({object, {}});
  EXPECT_NE(all.find("(Ada) Tj"), std::string::npos) << all;
}

TEST_F(PDFPagesTest, KeepTheirLayersHidden) {
  output.emptyPDF();
  PDFPages one(document("/MediaBox[0 0 90 90]", "", {"<</Type/OCG/Name(a)>>", "<</Type/OCG>>"},
                        "/OCProperties<</OCGs[5 0 R 6 0 R]/D<</OFF[5 0 R]>>>>"));
  one.draw(0, output);
  PDFPages two(document("/MediaBox[0 0 90 90]", "", {"<</Type/OCG/Name(b)>>", "<</Type/OCG>>"},
                        "/OCProperties<</OCGs[5 0 R 6 0 R]/D<</BaseState/OFF/ON[6 0 R]>>>>"));
  two.draw(0, output);
  QPDFObjectHandle layers = output.getRoot().getKey("/OCProperties");
  EXPECT_EQ(layers.getKey("/OCGs").getArrayNItems(), 4);
  QPDFObjectHandle hidden = layers.getKey("/D").getKey("/OFF");
  ASSERT_EQ(hidden.getArrayNItems(), 2);
  EXPECT_EQ(hidden.getArrayItem(0).getKey("/Name").getStringValue(), "a");
  EXPECT_EQ(hidden.getArrayItem(1).getKey("/Name").getStringValue(), "b");
}

TEST_F(PDFPagesTest, AreCounted) {
  EXPECT_EQ(PDFPages(place.write("a.pdf", numberedPDF(12))).count(), 12);
  EXPECT_EQ(PDFPages(place.write("b.pdf", numberedPDF(0))).count(), 0);
}

TEST_F(PDFPagesTest, OfADamagedDocumentAreNotThere) {
  EXPECT_EQ(troubleWith("no PDF"), Status::damaged);
  EXPECT_EQ(troubleWith(""), Status::damaged);
  EXPECT_EQ(troubleWith(numberedPDF(3).substr(0, 400)), Status::damaged);
  EXPECT_EQ(
      troubleWith(pdfOf({"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[2 0 R]/Count 1>>"})),
      Status::damaged)
      << "a tree of pages that is its own branch";
  EXPECT_THROW(PDFPages(place.path() / "missing.pdf"), Trouble);
}

TEST_F(PDFPagesTest, AreFoundWithoutATable) {
  std::string bytes = numberedPDF(3);
  bytes.replace(bytes.find("startxref\n") + 10, 1, "9");
  EXPECT_EQ(troubleWith(bytes), std::nullopt);
}

}  // namespace
}  // namespace tavrin

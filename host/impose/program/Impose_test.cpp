#include <array>
#include <cstdlib>
#include <memory>
#include <sys/wait.h>

#include <QColorSpace>
#include <QTransform>
#include <gtest/gtest.h>

#include "host/impose/pages/Qpdf.h"
#include "tests/fakes/FakePDF.h"
#include "tests/fixtures/FourCorners.h"
#include "tests/fixtures/TemporaryFolder.h"

// The program itself: what it writes, and how it ends.

namespace tavrin {
namespace {

using test::fourCorners;

// Pictures get to its edges, so that corners are easy to find.
const std::string kPaper = "--paper 300x400 --margins 0,0,0,0 ";

class ImposeTest : public testing::Test {
 protected:
  // The exit status; what the program writes is in the files "out" and "err".
  int run(const std::string& arguments, const std::string& output = "") {
    const std::string out = output.empty() ? (place.path() / "out").string() : output;
    const std::string err = (place.path() / "err").string();
    return WEXITSTATUS(
        std::system((TAVRIN_IMPOSE " " + arguments + " >" + out + " 2>" + err).c_str()));
  }
  std::string output() const { return test::textOf(place.path() / "out"); }
  std::string complaint() const { return test::textOf(place.path() / "err"); }

  std::string pdf(const std::string& name, const std::string& bytes) {
    return " application/pdf " + place.write(name, bytes).string();
  }
  std::string image(const std::string& name, const std::string& bytes) {
    return " image/jpeg " + place.write(name, bytes).string();
  }

  int pages() {
    QPDF sheets;
    sheets.processFile((place.path() / "out").c_str());
    return static_cast<int>(QPDFPageDocumentHelper(sheets).getAllPages().size());
  }

  // The sheet as it is drawn, a pixel for a point.
  QImage drawn(int sheet) {
    const std::string number = std::to_string(sheet);
    const std::string file = (place.path() / "drawn").string();
    const std::string command = "pdftoppm -r 72 -singlefile -f " + number + " -l " + number + " " +
                                (place.path() / "out").string() + " " + file;
    EXPECT_EQ(std::system(command.c_str()), 0);
    return QImage(QString::fromStdString(file + ".ppm"));
  }

  test::TemporaryFolder place;
};

// The colours of the corners of an area, from the top left in the order of reading, as letters.
std::string corners(const QImage& sheet, const QRect& area) {
  std::string text;
  const QRect inner = area.adjusted(9, 9, -9, -9);
  for (const QPoint corner :
       {inner.topLeft(), inner.topRight(), inner.bottomLeft(), inner.bottomRight()}) {
    const QRgb colour = sheet.pixel(corner);
    const bool red = qRed(colour) > 128, green = qGreen(colour) > 128, blue = qBlue(colour) > 128;
    text += red && green && blue ? 'W' : red && green ? 'Y' : red ? 'R' : green ? 'G' : 'B';
  }
  return text;
}

TEST_F(ImposeTest, PutsEveryPageOnASheetAsLargeAsThePaper) {
  ASSERT_EQ(run(kPaper + pdf("a.pdf", numberedPDF(3)) + pdf("b.pdf", numberedPDF(2))), 0);
  QPDF sheets;
  sheets.processFile((place.path() / "out").c_str());
  const auto all = QPDFPageDocumentHelper(sheets).getAllPages();
  EXPECT_EQ(all.size(), 5U);
  for (QPDFPageObjectHelper page : all) {
    const auto box = page.getMediaBox().getArrayAsRectangle();
    EXPECT_EQ(box.urx, 300);
    EXPECT_EQ(box.ury, 400);
  }
  EXPECT_EQ(complaint(), "");
}

TEST_F(ImposeTest, WritesTheSameBytesAgain) {
  const std::string arguments = kPaper + pdf("a.pdf", numberedPDF(3)) +
                                image("b.png", test::encoded(fourCorners(30, 40), "png"));
  ASSERT_EQ(run(arguments), 0);
  const std::string first = output();
  ASSERT_EQ(run(arguments), 0);
  EXPECT_EQ(output(), first);
}

// How a picture must have been stored to be seen upright, in the words of the Exif standard's
// table: which edges of what is seen are the first row and the first column.
QImage storedAs(int orientation, const QImage& seen) {
  const QTransform quarter = QTransform().rotate(90);
  const QImage turned = seen.transformed(quarter);
  const std::array<QImage, 8> stored{seen,
                                     seen.mirrored(true, false),
                                     seen.mirrored(true, true),
                                     seen.mirrored(false, true),
                                     turned.mirrored(true, false),
                                     turned.mirrored(true, true),
                                     turned.mirrored(false, true),
                                     turned};
  return stored[orientation - 1];
}

TEST_F(ImposeTest, ShowsPicturesUprightHoweverTheyAreStored) {
  std::string arguments = kPaper;
  for (int orientation = 1; orientation <= 8; ++orientation) {
    const QImage stored = storedAs(orientation, fourCorners(60, 80));
    arguments += image(std::to_string(orientation), test::jpegStoredAs(orientation, stored));
  }
  ASSERT_EQ(run(arguments), 0);
  for (int sheet = 1; sheet <= 8; ++sheet)
    EXPECT_EQ(corners(drawn(sheet), {0, 0, 300, 400}), "RGBY") << "orientation " << sheet;
}

TEST_F(ImposeTest, TurnsAWidePictureToTheLeft) {
  ASSERT_EQ(run(kPaper + image("a.jpg", test::encoded(fourCorners(80, 60), "jpeg"))), 0);
  EXPECT_EQ(corners(drawn(1), {0, 0, 300, 400}), "GYRB");
}

TEST_F(ImposeTest, DoesAsTheOptionsSay) {
  const std::string picture = image("a.jpg", test::encoded(fourCorners(60, 80), "jpeg"));
  ASSERT_EQ(run(kPaper + "-o scaling=50 -o position=top-right" + picture), 0);
  EXPECT_EQ(corners(drawn(1), {150, 0, 150, 200}), "RGBY");
  EXPECT_EQ(corners(drawn(1), {0, 200, 300, 200}), "WWWW");
  ASSERT_EQ(run(kPaper + "-o 'print-scaling=none orientation-requested=6'" + picture), 0);
  EXPECT_EQ(corners(drawn(1), {139, 186, 22, 28}), "YBGR") << "22 by 29 points, at 200 to the inch";
}

TEST_F(ImposeTest, CutsOffWhatIsTooMuch) {
  const std::string picture = image("a.jpg", test::encoded(fourCorners(120, 40), "jpeg"));
  const std::string margins = "--paper 300x400 --margins 50,60,70,80 ";
  ASSERT_EQ(run(margins + "-o print-scaling=fill -o orientation-requested=3" + picture), 0);
  EXPECT_EQ(corners(drawn(1), {50, 80, 180, 260}), "RGBY");
  EXPECT_EQ(corners(drawn(1), {32, 62, 216, 296}), "WWWW") << "nothing in the margins";
}

TEST_F(ImposeTest, LeavesAJpegAsItIs) {
  const std::string jpeg = test::encoded(fourCorners(60, 80), "jpeg");
  ASSERT_EQ(run(kPaper + image("a.jpg", jpeg)), 0);
  EXPECT_NE(output().find(jpeg), std::string::npos);
}

TEST_F(ImposeTest, LaysTransparentPicturesOnWhite) {
  QImage clear = fourCorners(60, 80).convertToFormat(QImage::Format_ARGB32);
  for (int x = 0; x < 30; ++x)
    for (int y = 0; y < 80; ++y) clear.setPixel(x, y, qRgba(0, 0, 0, 0));
  ASSERT_EQ(run(kPaper + image("a.png", test::encoded(clear, "png"))), 0);
  EXPECT_EQ(corners(drawn(1), {0, 0, 300, 400}), "WGWY");
}

TEST_F(ImposeTest, ReadsPicturesOfAllDepths) {
  for (const auto format :
       {QImage::Format_RGBA64, QImage::Format_Indexed8, QImage::Format_RGB888}) {
    const QImage picture = fourCorners(60, 80).convertToFormat(format);
    ASSERT_EQ(run(kPaper + image("a.png", test::encoded(picture, "png"))), 0);
    EXPECT_EQ(corners(drawn(1), {0, 0, 300, 400}), "RGBY") << "format " << format;
  }
}

// The one image of the output.
QPDFObjectHandle imageIn(QPDF& sheets) {
  for (QPDFObjectHandle& object : sheets.getAllObjects())
    if (object.isStream() && object.getDict().getKey("/Subtype").isNameAndEquals("/Image"))
      return object.getDict();
  return QPDFObjectHandle::newNull();
}

TEST_F(ImposeTest, KeepsGreyPicturesGrey) {
  for (const auto format :
       {QImage::Format_Grayscale8, QImage::Format_Grayscale16, QImage::Format_Mono}) {
    const QImage grey = fourCorners(60, 80).convertToFormat(QImage::Format_Grayscale8);
    ASSERT_EQ(run(kPaper + image("a.png", test::encoded(grey.convertToFormat(format), "png"))), 0);
    QPDF sheets;
    sheets.processFile((place.path() / "out").c_str());
    EXPECT_EQ(imageIn(sheets).getKey("/ColorSpace").unparse(), "/DeviceGray") << format;
  }
}

TEST_F(ImposeTest, ShowsTheColoursOfAnotherProfile) {
  QImage wide(60, 80, QImage::Format_RGB32);
  wide.fill(qRgb(128, 128, 0));
  wide.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
  const QImage known = wide.convertedToColorSpace(QColorSpace(QColorSpace::SRgb));
  EXPECT_NE(qRed(known.pixel(0, 0)), 128);
  for (const char* format : {"png", "jpeg"}) {
    ASSERT_EQ(run(kPaper + image("a", test::encoded(wide, format))), 0);
    EXPECT_NEAR(qRed(drawn(1).pixel(150, 200)), qRed(known.pixel(0, 0)), 3) << format;
  }
}

// Inks as Adobe's programs write them: the picture's end and no data are enough for the header.
TEST_F(ImposeTest, TurnsInksTheRightWayRound) {
  const std::string frame(
      "\x08\x00\x10\x00\x10\x04"
      "\x01\x11\x00\x02\x11\x00\x03\x11\x00\x04\x11\x00",
      18);
  const auto inks = [&](const std::string& mark) {
    return "\xff\xd8" + mark + test::jpegSegment(0xc0, frame) + test::jpegSegment(0xda, "scan") +
           "\xff\xd9";
  };
  const auto decode = [&](const std::string& mark) {
    EXPECT_EQ(run(kPaper + image("a.jpg", inks(mark))), 0);
    QPDF sheets;
    sheets.processFile((place.path() / "out").c_str());
    EXPECT_EQ(imageIn(sheets).getKey("/ColorSpace").unparse(), "/DeviceCMYK");
    return imageIn(sheets).getKey("/Decode").unparse();
  };
  EXPECT_EQ(decode(test::jpegSegment(0xee, "Adobe with inks")), "[ 1 0 1 0 1 0 1 0 ]");
  EXPECT_EQ(decode(""), "null");
}

TEST_F(ImposeTest, ChoosesPagesThroughAllDocuments) {
  const std::string documents = pdf("a.pdf", numberedPDF(3)) + pdf("b.pdf", numberedPDF(3));
  ASSERT_EQ(run(kPaper + "-o page-ranges=3-4,6" + documents), 0);
  EXPECT_EQ(pages(), 3);
  ASSERT_EQ(run(kPaper + "--whole-sheets -o page-ranges=3-4,6" + documents), 0);
  EXPECT_EQ(pages(), 4);
  EXPECT_EQ(run(kPaper + "-o page-ranges=7" + documents), 5);
  EXPECT_NE(complaint().find("None of the pages"), std::string::npos) << complaint();
}

TEST_F(ImposeTest, LooksAtADocument) {
  ASSERT_EQ(run("--look" + pdf("a.pdf", numberedPDF(3))), 0);
  EXPECT_EQ(output(),
            "{\"pages\":3,\"width\":612.0,\"height\":792.0,\"wide\":[],\"storedOtherwise\":"
            "false}\n");
  const QImage wide = fourCorners(400, 200);
  ASSERT_EQ(run("--look" + image("a.jpg", test::jpegStoredAs(6, wide))), 0);
  EXPECT_NE(output().find("\"wide\":[],\"storedOtherwise\":true"), std::string::npos) << output();
  ASSERT_EQ(run("--look" + image("a.jpg", test::encoded(wide, "jpeg"))), 0);
  EXPECT_NE(output().find("\"wide\":[1],\"storedOtherwise\":false"), std::string::npos) << output();
}

TEST_F(ImposeTest, SaysHowEachSheetLies) {
  const std::string turns = (place.path() / "turns").string();
  const std::string pictures = image("a.jpg", test::encoded(fourCorners(80, 60), "jpeg")) +
                               image("b.jpg", test::encoded(fourCorners(60, 80), "jpeg"));
  ASSERT_EQ(run(kPaper + "--turns " + turns + pictures), 0);
  EXPECT_EQ(test::textOf(turns), "10");
  ASSERT_EQ(run(kPaper + "--turns " + turns + " -o orientation-requested=6" + pictures), 0);
  EXPECT_EQ(test::textOf(turns), "22");
  EXPECT_EQ(run(kPaper + "--turns /there/is/none" + pictures), 6);
}

TEST_F(ImposeTest, JoinsPagesAndTurnsThem) {
  ASSERT_EQ(run("--join 0130" + pdf("a.pdf", numberedPDF(3)) + pdf("b.pdf", numberedPDF(1))), 0);
  QPDF joined;
  joined.processFile((place.path() / "out").c_str());
  std::string turns;
  for (QPDFPageObjectHelper page : QPDFPageDocumentHelper(joined).getAllPages())
    turns += page.getAttribute("/Rotate", false).unparse() + " ";
  EXPECT_EQ(turns, "0 90 270 0 ");
  EXPECT_EQ(run("--join 01" + pdf("a.pdf", numberedPDF(3))), 1);
}

std::string locked(const std::string& password) {
  QPDF document;
  const std::string bytes = numberedPDF(1);
  document.processMemoryFile("document", bytes.data(), bytes.size());
  QPDFWriter writer(document);
  writer.setOutputMemory();
  writer.setR6EncryptionParameters(password.c_str(), "owner", true, true, true, true, true, true,
                                   qpdf_r3p_full, true);
  writer.write();
  const auto buffer = writer.getBufferSharedPointer();
  return {reinterpret_cast<const char*>(buffer->getBuffer()), buffer->getSize()};
}

TEST_F(ImposeTest, SaysHowItEnds) {
  const auto look = [&](const std::string& document) { return run("--look" + document); };
  const std::string jpeg = test::encoded(fourCorners(60, 80), "jpeg");
  const std::string png = test::encoded(fourCorners(60, 80), "png");
  EXPECT_EQ(look(pdf("damaged.pdf", "%PDF-1.4 and no more")), 1);
  EXPECT_NE(complaint().find("damaged.pdf"), std::string::npos) << complaint();
  EXPECT_EQ(look(image("cut-off.jpg", jpeg.substr(0, jpeg.size() - 100))), 1);
  EXPECT_NE(complaint().find("cut-off.jpg"), std::string::npos) << complaint();
  EXPECT_EQ(run(kPaper + image("cut-off.png", png.substr(0, png.size() - 50))), 1);
  EXPECT_EQ(look(image("cut-off.png", png.substr(0, png.size() - 50))), 1);
  EXPECT_NE(complaint().find("its end is missing"), std::string::npos) << complaint();
  EXPECT_EQ(look(image("with-more.png", png + "more")), 0);
  EXPECT_EQ(look(image("empty.png", "")), 1);
  EXPECT_EQ(look(" image/png /there/is/none"), 1);
  EXPECT_EQ(look(pdf("locked.pdf", locked("secret"))), 3);
  EXPECT_EQ(look(pdf("locked.pdf", locked(""))), 0) << "for writing only";
  EXPECT_EQ(look(image("text.png", "Dear all,\n")), 4);
  EXPECT_EQ(look(" text/plain " + place.write("text", "Dear all,").string()), 4);
  EXPECT_EQ(look(pdf("empty.pdf", numberedPDF(0))), 5);
  EXPECT_EQ(run(kPaper + pdf("a.pdf", numberedPDF(1)), "/dev/full"), 6);
  EXPECT_EQ(run("--look" + pdf("a.pdf", numberedPDF(1)), "/dev/full"), 6);
}

TEST_F(ImposeTest, EndsWellWhateverTheDocumentDoes) {
  std::vector<std::string> nested{"<</Type/Catalog/Pages 2 0 R>>"};
  for (int level = 3; level < 60'000; ++level)
    nested.push_back("<</Type/Pages/Count 1/Kids[" + std::to_string(level) + " 0 R]>>");
  EXPECT_EQ(run("--look" + pdf("deep.pdf", pdfOf(nested))), 1);
  EXPECT_NE(complaint().find("damaged"), std::string::npos) << complaint();
}

TEST_F(ImposeTest, RefusesACommandThatIsWrong) {
  const std::string document = pdf("a.pdf", numberedPDF(1));
  const std::vector<std::string> wrong{"",
                                       "--look",
                                       "--look application/pdf",
                                       "--look" + document + document,
                                       document,
                                       "--paper 300x400 --margins 200,0,200,0" + document,
                                       "--paper 300" + document,
                                       "--paper 300x400x2" + document,
                                       "--paper nanx400" + document,
                                       "--paper 300x" + document,
                                       "--join 04" + document,
                                       kPaper + "--turns",
                                       kPaper + "-x" + document,
                                       kPaper + document + " application/pdf",
                                       kPaper + "-o"};
  for (const std::string& arguments : wrong) EXPECT_EQ(run(arguments), 2) << arguments;
  EXPECT_NE(complaint().find("Usage: "), std::string::npos);
}

}  // namespace
}  // namespace tavrin

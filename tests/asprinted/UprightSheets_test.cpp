#include <algorithm>
#include <optional>

#include <QImage>
#include <QTransform>
#include <gtest/gtest.h>

#include "host/preview/SheetLook.h"
#include "host/preview/SheetPainter.h"
#include "host/preview/SheetsMaker.h"
#include "host/preview/SheetsSaver.h"
#include "tests/fakes/FakePDF.h"
#include "tests/fixtures/EventLoopTest.h"
#include "tests/fixtures/FourCorners.h"
#include "tests/fixtures/SeenDocuments.h"
#include "tests/fixtures/TemporaryFolder.h"

// How sheets are held for reading, whoever lays them out: what is on them is upright.

namespace tavrin {
namespace {

namespace fs = std::filesystem;

constexpr int kPixels = 120;  // of a sheet's longer side

// Four pages of a size, "842 595", each with its quarters in four colours.
std::string colouredPDF(int width, int height) {
  const auto quarter = [&](const char* colour, int x, int y) {
    return std::string(colour) + " rg " + std::to_string(x) + " " + std::to_string(y) + " " +
           std::to_string(width / 2) + " " + std::to_string(height / 2) + " re f ";
  };
  const std::string page = "<</Type/Page/Parent 2 0 R/Contents 3 0 R/MediaBox[0 0 " +
                           std::to_string(width) + " " + std::to_string(height) + "]>>";
  return pdfOf(
      {"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Count 4/Kids[4 0 R 5 0 R 6 0 R 7 0 R]>>",
       pdfStream(quarter("1 0 0", 0, height / 2) + quarter("0 1 0", width / 2, height / 2) +
                 quarter("0 0 1", 0, 0) + quarter("1 1 0", width / 2, 0)),
       page, page, page, page});
}

bool isWhite(QRgb colour) { return std::min({qRed(colour), qGreen(colour), qBlue(colour)}) > 128; }

// The area that all is in that is not white.
QRect inked(const QImage& sheet) {
  QRect area;
  for (int y = 0; y < sheet.height(); ++y)
    for (int x = 0; x < sheet.width(); ++x)
      if (!isWhite(sheet.pixel(x, y))) area |= QRect(x, y, 1, 1);
  return area;
}

// The colours of the corners of all that is on a sheet, in the order of reading, as letters.
std::string corners(const QImage& sheet) {
  std::string text;
  const QRect inner = inked(sheet).adjusted(2, 2, -2, -2);
  for (const QPoint corner :
       {inner.topLeft(), inner.topRight(), inner.bottomLeft(), inner.bottomRight()}) {
    const QRgb colour = sheet.pixel(corner);
    const bool red = qRed(colour) > 128, green = qGreen(colour) > 128;
    text += isWhite(colour) ? 'W' : red && green ? 'Y' : red ? 'R' : green ? 'G' : 'B';
  }
  return text;
}

class UprightSheetsTest : public EventLoopTest {
 protected:
  UprightSheetsTest() {
    place.write("high.pdf", colouredPDF(595, 842));
    place.write("wide.pdf", colouredPDF(842, 595));
    place.write("high.jpg", test::encoded(test::fourCorners(60, 80), "jpeg"));
    place.write("wide.jpg", test::encoded(test::fourCorners(80, 60), "jpeg"));
  }
  Preparation wish(const std::string& document, const std::string& printer,
                   const OptionList& options) {
    seen.emplace(std::vector{place.path() / document});
    return test::preparationFor(seen->facts(), fs::path(RESOURCES) / printer, options);
  }
  Preparation forFile(const std::string& document, const OptionList& options) {
    Preparation preparation = wish(document, "pdf.ppd", options);
    preparation.isForFile = true;
    return preparation;
  }
  // The first sheet as the preview shows it.
  QImage shown(const Preparation& preparation) {
    SheetsMaker maker(preparation);
    QImage picture;
    QString reason;
    std::optional<Sheets> sheets;
    SheetPainter painter;
    QObject::connect(&maker, &SheetsMaker::failed, [&](const QString& why) { reason = why; });
    QObject::connect(&maker, &SheetsMaker::made, [&](const Sheets& made) { sheets = made; });
    QObject::connect(&painter, &SheetPainter::drawn, [&](int, int, const QByteArray& bytes) {
      picture = QImage::fromData(bytes, "PPM");
    });
    maker.start();
    EXPECT_TRUE(eventually([&] { return sheets || !reason.isEmpty(); }));
    EXPECT_EQ(reason.toStdString(), "");
    if (!sheets) return {};
    painter.draw(*sheets, 0, kPixels, SheetPainter::Ink::colour);
    EXPECT_TRUE(eventually([&] { return !picture.isNull(); }));
    const Sheet& sheet = sheets->documents.front().list.front();
    return picture.transformed(QTransform().rotate(sheet.upright - sheet.rotation));
  }
  // The first sheet of the saved file as a reader shows it.
  QImage saved(const Preparation& preparation) {
    SheetsSaver saver;
    QString end;
    QObject::connect(&saver, &SheetsSaver::saved, [&] { end = "saved"; });
    QObject::connect(&saver, &SheetsSaver::failed, [&](const QString& why) { end = why; });
    saver.save(preparation, place.path() / "saved.pdf", SheetsSaver::Existing::isReplaced);
    EXPECT_TRUE(eventually([&] { return !end.isEmpty(); }));
    EXPECT_EQ(end.toStdString(), "saved");
    const std::string out = (place.path() / "drawn").string();
    const std::string command = "pdftoppm -singlefile -scale-to " + std::to_string(kPixels) + " '" +
                                (place.path() / "saved.pdf").string() + "' '" + out + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);  // NOLINT(cert-env33-c)
    return QImage(QString::fromStdString(out + ".ppm"));
  }

  test::TemporaryFolder place;
  std::optional<test::SeenDocuments> seen;
};

const std::vector<const char*> kDocuments{"high.pdf", "wide.pdf", "high.jpg", "wide.jpg"};

// A row of the table: the options, and what can be read at the corners of a sheet.
struct Row {
  OptionList options;
  const char* corners = "RGBY";
};

const std::vector<Row> kRows{{{}},
                             {{{"Mirror", "True"}}, "GRYB"},
                             {{{"orientation-requested", "3"}}},
                             {{{"orientation-requested", "4"}}},
                             {{{"orientation-requested", "5"}}},
                             {{{"orientation-requested", "6"}}},
                             {{{"orientation-requested", "4"}, {"Mirror", "True"}}, "GRYB"},
                             {{{"scaling", "50"}, {"position", "top-left"}}},
                             {{{"number-up", "2"}}},
                             {{{"number-up", "2"}, {"Mirror", "True"}}, "GRYB"},
                             {{{"number-up", "4"}}},
                             {{{"page-ranges", "1"}, {"number-up", "2"}}},
                             {{{"booklet", "true"}}}};

std::string named(const char* document, const Row& row) {
  std::string text = document;
  for (const auto& [name, value] : row.options) text += " " + name + "=" + value;
  return text;
}

TEST_F(UprightSheetsTest, AreShown) {
  // One printer turns pages to the left, the other one to the right.
  std::string ppd = test::textOf(fs::path(RESOURCES) / "printers/tavrin-r420.ppd");
  ppd.replace(ppd.find("Plus90"), 6, "Minus90");
  const std::string other = place.write("other.ppd", ppd).string();
  for (const std::string& printer : {std::string("printers/tavrin-r420.ppd"), other})
    for (const char* document : kDocuments)
      for (const Row& row : kRows)
        EXPECT_EQ(corners(shown(wish(document, printer, row.options))), row.corners)
            << printer << " " << named(document, row);
}

TEST_F(UprightSheetsTest, AreSavedForReading) {
  for (const char* document : kDocuments)
    for (const Row& row : kRows) {
      if (isMirrored(row.options)) continue;  // for which the destination has no option
      EXPECT_EQ(corners(saved(forFile(document, row.options))), row.corners)
          << named(document, row);
    }
}

TEST_F(UprightSheetsTest, AreSavedForReadingOnWidePaper) {
  for (const char* document : kDocuments)
    for (Row row : kRows) {
      if (isMirrored(row.options)) continue;
      row.options.emplace_back("PageSize", "Custom.842x595");
      EXPECT_EQ(corners(saved(forFile(document, row.options))), row.corners)
          << named(document, row);
    }
}

TEST_F(UprightSheetsTest, AreSavedForAPrinterAsItGetsThem) {
  for (const char* document : {"wide.pdf", "wide.jpg"})
    EXPECT_EQ(corners(saved(wish(document, "printers/tavrin-r420.ppd", {}))), "GYRB") << document;
}

}  // namespace
}  // namespace tavrin

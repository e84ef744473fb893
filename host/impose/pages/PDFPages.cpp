#include "host/impose/pages/PDFPages.h"

#include <algorithm>
#include <cstring>

#include "host/impose/pages/Layers.h"
#include "host/impose/pages/Qpdf.h"
#include "host/impose/pictures/Trouble.h"
#include "platform/text/Quoted.h"

namespace tavrin {

namespace {

constexpr Rect kUsualBox{0, 0, 612, 792};
constexpr double kCrop = 1;             // points; less is rounding
constexpr double kLargestLength = 1e6;  // points

bool isSound(const Rect& box) {
  return box.width >= 1 && box.height >= 1 && box.width <= kLargestLength &&
         box.height <= kLargestLength;
}

Rect boxOf(QPDFObjectHandle array, const Rect& fallback) {
  if (!array.isRectangle()) return fallback;
  const auto corners = array.getArrayAsRectangle();
  const Rect box{corners.llx, corners.lly, corners.urx - corners.llx, corners.ury - corners.lly};
  return isSound(box) ? box : fallback;
}

Rect mediaBox(QPDFPageObjectHelper page) {
  return boxOf(page.getAttribute("/MediaBox", false), kUsualBox);
}

// What readers show: the crop box as far as there is paper.
Rect shownBox(QPDFPageObjectHelper page) {
  const Rect media = mediaBox(page);
  const Rect both = common(media, boxOf(page.getAttribute("/CropBox", false), media));
  return isSound(both) ? both : media;
}

bool isCropped(const QPDFPageObjectHelper& page) {
  const Size shown = shownBox(page).size();
  const Size whole = mediaBox(page).size();
  return whole.width - shown.width > kCrop || whole.height - shown.height > kCrop;
}

// Clockwise, as the page has it.
int quarterTurns(QPDFPageObjectHelper page) {
  QPDFObjectHandle rotate = page.getAttribute("/Rotate", false);
  if (!rotate.isInteger()) return 0;
  return static_cast<int>((rotate.getIntValue() / 90 % 4 + 4) % 4);
}

double userUnit(QPDFPageObjectHelper page) {
  double unit = 1;
  const bool isNumber = page.getObjectHandle().getKey("/UserUnit").getValueAsNumber(unit);
  return isNumber && unit > 0 && unit <= kLargestLength ? unit : 1;
}

// The unit square turned clockwise within itself.
Matrix turnedClockwise(int quarters) {
  switch (quarters) {
    case 1:
      return {0, -1, 1, 0, 0, 1};
    case 2:
      return {-1, 0, 0, -1, 1, 1};
    case 3:
      return {0, 1, -1, 0, 1, 0};
    default:
      return {};
  }
}

// What the library puts into fields is lost on the way to another document, unless it is made the
// stream's own.
void fillIn(QPDF& pdf, const std::vector<QPDFPageObjectHelper>& pages) {
  QPDFAcroFormDocumentHelper form(pdf);
  if (!form.getNeedAppearances()) return;
  form.generateAppearancesIfNeeded();
  for (const QPDFPageObjectHelper& page : pages)
    for (QPDFAnnotationObjectHelper& field : form.getWidgetAnnotationsForPage(page)) {
      QPDFObjectHandle look = field.getAppearanceStream("/N");
      if (look.isStream())
        look.replaceStreamData(look.getStreamData(), QPDFObjectHandle::newNull(),
                               QPDFObjectHandle::newNull());
    }
}

[[noreturn]] void explain(const QPDFExc& problem, const std::filesystem::path& file) {
  const std::string name = "The document " + quoted(file.string());
  if (problem.getErrorCode() == qpdf_e_password)
    throw Trouble(Status::locked, name + " wants a password. Save it without one and print that.");
  throw Trouble(Status::damaged, name + " is damaged.");
}

}  // namespace

PDFPages::PDFPages(const std::filesystem::path& file) try {
  pdf.setSuppressWarnings(true);
  pdf.processFile(file.c_str());
  if (!pdf.allowPrintLowRes())
    throw Trouble(Status::locked, "The document " + quoted(file.string()) +
                                      " must not be printed, as whoever made it wants it.");
  pages = QPDFPageDocumentHelper(pdf).getAllPages();
} catch (const QPDFExc& problem) {
  explain(problem, file);
} catch (const QPDFSystemError& problem) {
  throw Trouble(Status::damaged, "The document " + quoted(file.string()) +
                                     " cannot be read: " + std::strerror(problem.getErrno()) + ".");
}

PageLook PDFPages::look(int page) const {
  const Rect box = shownBox(pages[page]);
  const double unit = userUnit(pages[page]);
  const Size size{box.width * unit, box.height * unit};
  return {quarterTurns(pages[page]) % 2 == 0 ? size : onItsSide(size)};
}

bool PDFPages::isStoredOtherwise() const { return std::ranges::any_of(pages, isCropped); }

// Once, and only when pages are drawn: it changes them.
void PDFPages::prepare(QPDF& output) {
  if (isPrepared) return;
  isPrepared = true;
  fillIn(pdf, pages);
  QPDFPageDocumentHelper(pdf).flattenAnnotations(an_print);
  keepLayers(pdf, output);
}

Drawing PDFPages::draw(int page, QPDF& output) {
  prepare(output);
  const Rect box = shownBox(pages[page]);
  QPDFObjectHandle form = pages[page].getFormXObjectForPage(false);
  form.getDict().replaceKey("/BBox", QPDFObjectHandle::newArray(QPDFObjectHandle::Rectangle(
                                         box.left, box.bottom, box.right(), box.top())));
  return {output.copyForeignObject(form),
          then(fromRect(box), turnedClockwise(quarterTurns(pages[page])))};
}

}  // namespace tavrin

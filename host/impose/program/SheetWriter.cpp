#include "host/impose/program/SheetWriter.h"

#include <initializer_list>
#include <string>

#include "host/impose/pages/Qpdf.h"

namespace tavrin {

namespace {

// Fine enough for lengths in points, and for the matrices that are made of them.
constexpr int kDecimals = 5;

std::string numbers(std::initializer_list<double> values) {
  std::string text;
  for (const double value : values) text += QUtil::double_to_string(value, kDecimals) + " ";
  return text;
}

std::string rectangle(const Rect& rect) {
  return numbers({rect.left, rect.bottom, rect.width, rect.height}) + "re ";
}

std::string placed(const PlacedPage& page, const Matrix& toUnitSquare, const std::string& name) {
  const Matrix m = then(toUnitSquare, page.matrix);
  const std::string clip = page.clip ? rectangle(*page.clip) + "W n " : "";
  return "q " + clip + numbers({m.a, m.b, m.c, m.d, m.e, m.f}) + "cm " + name + " Do Q\n";
}

std::string drawn(const Frame& frame) {
  return "q " + numbers({frame.line}) + "w " + rectangle(frame.rect) + "S Q\n";
}

class SheetWriter {
 public:
  SheetWriter(Size thePaper, const DocumentPages& thePages) : paper(thePaper), pages(thePages) {
    output.emptyPDF();
  }

  void add(const Sheet& sheet) {
    auto objects = QPDFObjectHandle::newDictionary();
    std::string contents;
    for (const PlacedPage& page : sheet.pages) {
      const std::string name = "/P" + std::to_string(page.page + 1);
      const Drawing drawing = pages.draw(page.page, output);
      objects.replaceKey(name, drawing.object);
      contents += placed(page, drawing.toUnitSquare, name);
    }
    for (const Frame& frame : sheet.frames) contents += drawn(frame);
    QPDFPageDocumentHelper(output).addPage(pageOf(objects, contents), false);
  }

  void write(Pipeline& to) {
    QPDFWriter writer(output);
    writer.setOutputPipeline(&to);
    writer.setDeterministicID(true);
    writer.setMinimumPDFVersion("1.7");
    writer.setObjectStreamMode(qpdf_o_generate);
    writer.write();
  }

 private:
  QPDFPageObjectHelper pageOf(const QPDFObjectHandle& objects, const std::string& contents) {
    auto resources = QPDFObjectHandle::newDictionary();
    resources.replaceKey("/XObject", objects);
    auto page = QPDFObjectHandle::newDictionary();
    page.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
    page.replaceKey("/MediaBox", QPDFObjectHandle::newArray(
                                     QPDFObjectHandle::Rectangle(0, 0, paper.width, paper.height)));
    page.replaceKey("/Resources", resources);
    page.replaceKey("/Contents", output.newStream(contents));
    return QPDFPageObjectHelper(output.makeIndirectObject(page));
  }

  Size paper;
  const DocumentPages& pages;
  QPDF output;
};

}  // namespace

void writeSheets(const std::vector<Sheet>& sheets, Size paper, const DocumentPages& pages,
                 Pipeline& output) {
  SheetWriter writer(paper, pages);
  for (const Sheet& sheet : sheets) writer.add(sheet);
  writer.write(output);
}

}  // namespace tavrin

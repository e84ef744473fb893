#include "tests/fakes/FakePDF.h"

namespace tavrin {
namespace {

constexpr int kFirstPage = 4;  // objects 1 to 3 are the catalogue, the pages and the font

std::string reference(int object) { return std::to_string(object) + " 0 R"; }

// The objects of the file, each a page and then its contents behind the first three.
std::vector<std::string> objectsOf(int pages) {
  std::string kids;
  for (int page = 0; page < pages; ++page) kids += reference(kFirstPage + 2 * page) + " ";
  std::vector<std::string> objects{"<</Type/Catalog/Pages 2 0 R>>",
                                   "<</Type/Pages/Kids[" + kids + "]/Count " +
                                       std::to_string(pages) + "/MediaBox[0 0 612 792]>>",
                                   "<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>"};
  for (int page = 0; page < pages; ++page) {
    objects.push_back("<</Type/Page/Parent 2 0 R/Resources<</Font<</F 3 0 R>>>>/Contents " +
                      reference(kFirstPage + 2 * page + 1) + ">>");
    objects.push_back(pdfStream("BT /F 200 Tf 60 500 Td (F" + std::to_string(page + 1) +
                                ") Tj ET 20 20 100 50 re f"));
  }
  return objects;
}

}  // namespace

std::string pdfStream(const std::string& contents, const std::string& entries) {
  return "<<" + entries + "/Length " + std::to_string(contents.size()) + ">>stream\n" + contents +
         "\nendstream";
}

std::string numberedPDF(int pages) { return pdfOf(objectsOf(pages)); }

std::string pdfOf(const std::vector<std::string>& objects) {
  std::string text = "%PDF-1.4\n";
  std::string places;
  int number = 0;
  for (const std::string& object : objects) {
    const std::string at = std::to_string(text.size());
    places += std::string(10 - at.size(), '0') + at + " 00000 n \n";
    text += std::to_string(++number) + " 0 obj\n" + object + "\nendobj\n";
  }
  const std::string size = std::to_string(number + 1);
  const std::string start = std::to_string(text.size());
  return text + "xref\n0 " + size + "\n0000000000 65535 f \n" + places + "trailer<</Size " + size +
         "/Root 1 0 R>>\nstartxref\n" + start + "\n%%EOF\n";
}

std::string lockedPDF() {
  const std::string key(32, 'x');
  std::string bytes = numberedPDF(1);
  const std::string id = "/ID[(" + key + ")(" + key + ")]";
  return bytes.insert(bytes.find("/Root"), "/Encrypt<</Filter/Standard/V 1/R 2/P -4/O(" + key +
                                               ")/U(" + key + ")>>" + id);
}

}  // namespace tavrin

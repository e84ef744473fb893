#include "platform/qt/toolkit/InterfaceFile.h"

#include <algorithm>
#include <vector>

#include <QSet>
#include <QXmlStreamReader>

#include "platform/files/RegularFile.h"

namespace tavrin {

namespace {

constexpr int kDepthLimit = 40;
constexpr int kWidgetLimit = 500;
constexpr qsizetype kTextLimit = 4096;
constexpr double kNumberLimit = 4000;
constexpr int kCellLimit = 100;

const QSet<QString>& widgetClasses() {
  static const QSet<QString> names{"QWidget",     "QDialog",        "QFrame",       "QLabel",
                                   "QComboBox",   "QCheckBox",      "QRadioButton", "QSlider",
                                   "QToolButton", "QPlainTextEdit", "QPushButton",  "QScrollArea"};
  return names;
}

const QSet<QString>& layoutClasses() {
  static const QSet<QString> names{"QVBoxLayout", "QHBoxLayout", "QGridLayout", "QFormLayout"};
  return names;
}

const QSet<QString>& elements() {
  static const QSet<QString> names{
      "ui",         "class",    "comment", "author",    "widget",     "layout",     "item",
      "spacer",     "property", "string",  "cstring",   "bool",       "number",     "double",
      "enum",       "set",      "rect",    "x",         "y",          "width",      "height",
      "size",       "font",     "bold",    "italic",    "pointsize",  "sizepolicy", "horstretch",
      "verstretch", "tabstops", "tabstop", "resources", "connections"};
  return names;
}

const QSet<QString>& properties() {
  static const QSet<QString> names{
      // of widgets
      "action", "geometry", "windowTitle", "visible", "enabled", "text", "alignment", "wordWrap",
      "buddy", "font", "toolTip", "accessibleName", "accessibleDescription", "focusPolicy",
      "sizePolicy", "minimumSize", "maximumSize", "autoRaise", "arrowType", "checkable", "checked",
      "default", "autoDefault", "autoExclusive", "frameShape", "frameShadow", "widgetResizable",
      "horizontalScrollBarPolicy", "verticalScrollBarPolicy", "readOnly", "textFormat", "indent",
      "textInteractionFlags", "tabChangesFocus", "title",
      // of sliders
      "minimum", "maximum", "singleStep", "pageStep", "value", "tracking", "orientation",
      "tickPosition", "tickInterval",
      // of layouts and spacers
      "spacing", "margin", "leftMargin", "topMargin", "rightMargin", "bottomMargin",
      "horizontalSpacing", "verticalSpacing", "sizeHint", "sizeType"};
  return names;
}

bool isAllowedText(QStringView text) {
  if (text.size() > kTextLimit) return false;
  bool isNumber = false;
  const double number = text.trimmed().toDouble(&isNumber);
  return !isNumber || (number >= -kNumberLimit && number <= kNumberLimit);
}

// A layout's stretches and minimum sizes are lists of numbers.
bool isAllowedAttribute(const QXmlStreamAttribute& attribute) {
  for (const QStringView part : attribute.value().split(u','))
    if (!isAllowedText(part)) return false;
  return true;
}

// A grid has as many cells as the places and spans of its items ask for.
bool isAllowedCell(const QXmlStreamAttributes& attributes) {
  for (const char* name : {"row", "column", "rowspan", "colspan"}) {
    const int number = attributes.value(QLatin1String(name)).toInt();
    if (number < 0 || number > kCellLimit) return false;
  }
  return true;
}

bool isAllowedElement(const QXmlStreamReader& xml) {
  const QString element = xml.name().toString();
  const QXmlStreamAttributes attributes = xml.attributes();
  if (!elements().contains(element)) return false;
  if (!std::all_of(attributes.begin(), attributes.end(), isAllowedAttribute)) return false;
  if (element == "widget") return isKnownWidgetClass(attributes.value("class").toString());
  if (element == "layout") return layoutClasses().contains(attributes.value("class").toString());
  if (element == "property") return properties().contains(attributes.value("name").toString());
  return isAllowedCell(attributes);
}

// Checks an interface file piece by piece.
class Inspection {
 public:
  explicit Inspection(const QByteArray& bytes) : xml(bytes) {}

  bool isSound() {
    while (!xml.atEnd()) {
      if (!takePiece(xml.readNext())) return false;
    }
    return !xml.hasError() && widgets > 0;
  }

 private:
  bool takePiece(QXmlStreamReader::TokenType piece) {
    switch (piece) {
      case QXmlStreamReader::DTD:
      case QXmlStreamReader::EntityReference:
        return false;
      case QXmlStreamReader::StartElement:
        text.clear();
        return ++depth <= kDepthLimit && isAllowedElement(xml) &&
               (xml.name() != u"widget" || enterWidget());
      case QXmlStreamReader::EndElement:
        --depth;
        text.clear();
        if (xml.name() == u"widget") open.pop_back();
        return true;
      case QXmlStreamReader::Characters:
        // A comment or a CDATA section splits a text into pieces that the form builder joins again.
        text += xml.text();
        return isAllowedText(text);
      default:
        return true;
    }
  }

  // The form builder deletes what a scroll area shows when a second widget comes into it, and goes
  // on using it.
  bool enterWidget() {
    if (!open.empty() && open.back().isScrollArea && ++open.back().children > 1) return false;
    open.push_back({xml.attributes().value("class") == u"QScrollArea"});
    return ++widgets <= kWidgetLimit;
  }

  struct OpenWidget {
    bool isScrollArea;
    int children = 0;
  };

  QXmlStreamReader xml;
  std::vector<OpenWidget> open;
  QString text;  // of the innermost element, so far
  int depth = 0;
  int widgets = 0;
};

}  // namespace

bool isKnownWidgetClass(const QString& name) { return widgetClasses().contains(name); }

bool isSoundInterface(const QByteArray& bytes) { return Inspection(bytes).isSound(); }

std::optional<QByteArray> readInterfaceFile(const std::filesystem::path& file) {
  const auto read = readRegularFile(file, kInterfaceSizeLimit);
  if (!read) return {};
  QByteArray bytes = QByteArray::fromStdString(*read);
  if (!isSoundInterface(bytes)) return {};
  return bytes;
}

}  // namespace tavrin

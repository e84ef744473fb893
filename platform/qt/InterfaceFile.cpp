#include "platform/qt/InterfaceFile.h"

#include <QFile>
#include <QSet>
#include <QXmlStreamReader>

namespace tavrin {

namespace {

constexpr int kDepthLimit = 40;
constexpr int kWidgetLimit = 500;
constexpr qsizetype kTextLimit = 4096;
constexpr double kNumberLimit = 4000;

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

bool isAllowedElement(QXmlStreamReader& xml, int& widgets) {
  const QString name = xml.name().toString();
  if (!elements().contains(name)) return false;
  const auto attribute = [&](const char* key) {
    return xml.attributes().value(QLatin1String(key)).toString();
  };
  if (name == "widget") return isKnownWidgetClass(attribute("class")) && ++widgets <= kWidgetLimit;
  if (name == "layout") return layoutClasses().contains(attribute("class"));
  if (name == "property") return properties().contains(attribute("name"));
  for (const auto& [row, limit] :
       {std::pair{"row", 100}, {"column", 100}, {"rowspan", 100}, {"colspan", 100}})
    if (attribute(row).toInt() > limit || attribute(row).toInt() < 0) return false;
  return true;
}

bool isAllowedText(const QStringView text) {
  if (text.size() > kTextLimit) return false;
  bool isNumber = false;
  const double number = text.trimmed().toDouble(&isNumber);
  return !isNumber || (number >= -kNumberLimit && number <= kNumberLimit);
}

}  // namespace

bool isKnownWidgetClass(const QString& name) { return widgetClasses().contains(name); }

bool isSoundInterface(const QByteArray& bytes) {
  QXmlStreamReader xml(bytes);
  int depth = 0;
  int widgets = 0;
  while (!xml.atEnd()) {
    const auto token = xml.readNext();
    if (token == QXmlStreamReader::DTD || token == QXmlStreamReader::EntityReference) return false;
    if (token == QXmlStreamReader::StartElement &&
        (++depth > kDepthLimit || !isAllowedElement(xml, widgets)))
      return false;
    if (token == QXmlStreamReader::EndElement) --depth;
    if (token == QXmlStreamReader::Characters && !isAllowedText(xml.text())) return false;
  }
  return !xml.hasError() && widgets > 0;
}

std::optional<QByteArray> readInterfaceFile(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return {};
  QFile source(QString::fromStdString(file.string()));
  if (!source.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = source.read(kInterfaceSizeLimit + 1);
  if (bytes.size() > kInterfaceSizeLimit || !isSoundInterface(bytes)) return {};
  return bytes;
}

}  // namespace tavrin

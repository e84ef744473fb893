#pragma once

#include <map>
#include <string>

#include <QVariant>
#include <QWidget>

#include "platform/qt/base/WidgetProperties.h"

// Widgets of an interface file as a person meets them.

namespace tavrin {

// Every widget of the kind that has an outlet's name, in the order of the names. Qt's own parts of
// a widget have other names.
template <class Kind>
std::map<std::string, const Kind*> outlets(const QWidget& root) {
  std::map<std::string, const Kind*> found;
  for (const Kind* widget : root.findChildren<const Kind*>())
    if (widget->objectName().startsWith("ib"))
      found.emplace(widget->objectName().toStdString(), widget);
  return found;
}

// A widget's text as it was set; until then the interface file's.
inline std::string textOf(const QWidget& widget, const QString& textOfFile) {
  const QVariant raw = widget.property(kRawText);
  return raw.isValid() ? raw.toByteArray().toStdString() : textOfFile.toStdString();
}

}  // namespace tavrin

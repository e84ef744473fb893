#pragma once

#include <QPlainTextEdit>

#include "platform/qt/controls/QtLabelOf.h"

namespace tavrin {

// A label for a longer text, which the user can scroll, select and copy.
class QtTextLabel : public QtLabelOf<QPlainTextEdit> {
 public:
  explicit QtTextLabel(QPlainTextEdit& text);

  void setStringValue(const std::string& text) override;
};

}  // namespace tavrin

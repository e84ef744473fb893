#pragma once

#include <QPlainTextEdit>

#include "platform/qt/QtView.h"

namespace tavrin {

// A label for a longer text, which the user can scroll, select and copy.
class QtTextLabel : public QtViewOf<Label, QPlainTextEdit> {
 public:
  explicit QtTextLabel(QPlainTextEdit& text);

  void setStringValue(const std::string& text) override;
  void setTextColor(TextColor color) override;
};

}  // namespace tavrin

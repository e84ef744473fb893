#include "platform/qt/controls/QtTextLabel.h"

#include "platform/qt/base/ShownText.h"

namespace tavrin {

QtTextLabel::QtTextLabel(QPlainTextEdit& text) : QtLabelOf(text) {
  text.setReadOnly(true);
  text.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  text.setTabChangesFocus(true);
  text.viewport()->setAutoFillBackground(false);  // text on the window, not a field to type into
}

void QtTextLabel::setStringValue(const std::string& text) {
  if (!widget) return;
  widget->setProperty(kRawText, QByteArray::fromStdString(text));
  widget->setPlainText(shownText(text));
}

}  // namespace tavrin

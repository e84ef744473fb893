#include "platform/qt/QtTextLabel.h"

#include "platform/qt/ShownText.h"

namespace tavrin {

QtTextLabel::QtTextLabel(QPlainTextEdit& text) : QtViewOf(text) {
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

void QtTextLabel::setTextColor(TextColor color) {
  if (!widget) return;
  const bool grey = color == TextColor::grey;
  widget->setProperty(kTextColor, grey ? QStringLiteral("grey") : QStringLiteral("black"));
  widget->setEnabled(!grey);
}

}  // namespace tavrin

#include "platform/qt/controls/QtLabel.h"

#include <QAbstractButton>
#include <QMouseEvent>
#include <QStringList>

#include "platform/qt/base/MakeChild.h"
#include "platform/qt/base/ShownText.h"

namespace tavrin {

namespace {

// Passes clicks on a label on to its button.
class ClickForwarder : public QObject {
 public:
  explicit ClickForwarder(QLabel* owner) : QObject(owner), label(*owner) {}

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonRelease)
      return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    auto* button = qobject_cast<QAbstractButton*>(label.buddy());
    if (!button || mouse->button() != Qt::LeftButton) return false;
    const bool released = event->type() == QEvent::MouseButtonRelease;
    if (released && label.rect().contains(mouse->position().toPoint())) click(*button);
    return true;
  }

 private:
  static void click(QAbstractButton& button) {
    if (!button.isEnabled()) return;
    button.setFocus(Qt::MouseFocusReason);
    button.click();
  }

  QLabel& label;
};

QString asName(QString text) {
  text = text.trimmed();
  if (text.endsWith(u':')) text.chop(1);
  return text.trimmed();
}

}  // namespace

QtLabel::QtLabel(QLabel& label) : QtLabelOf(label) {
  label.setTextFormat(Qt::PlainText);
  label.installEventFilter(makeChild<ClickForwarder>(&label));
}

void QtLabel::setStringValue(const std::string& text) {
  if (!widget) return;
  widget->setProperty(kRawText, QByteArray::fromStdString(text));
  const QString shown = widget->wordWrap() ? shownLines(text) : shownLine(text);
  // Only a label with a buddy takes "&" for a mnemonic.
  widget->setText(widget->buddy() ? withoutMnemonics(shown) : shown);
  nameBuddy();
  layoutChanged(*widget);
}

// Several labels may name one control: the lines of a choice's caption.
void QtLabel::nameBuddy() {
  QWidget* buddy = widget->buddy();
  if (!buddy) return;
  QStringList names;
  for (const QLabel* label : widget->parentWidget()->findChildren<QLabel*>()) {
    const QByteArray text = label->property(kRawText).toByteArray();
    if (label->buddy() == buddy && !text.isEmpty()) names << asName(shownLine(text.toStdString()));
  }
  buddy->setAccessibleName(names.join(QStringLiteral(", ")));
}

}  // namespace tavrin

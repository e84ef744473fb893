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

bool mayBeCut(const QLabel& label) {
  return label.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
}

// The tool tip has to be markup at all times: Qt takes a text for markup when it looks like it.
QString cutToFit(QLabel& label, const QString& text) {
  const QString cut = label.fontMetrics().elidedText(text, Qt::ElideRight, label.width());
  label.setToolTip(cut == text ? QString() : "<span>" + text.toHtmlEscaped() + "</span>");
  label.setAccessibleName(text);
  return cut;
}

// Only a label with a buddy takes "&" for a mnemonic.
void showText(QLabel& label) {
  const std::string text = label.property(kRawText).toByteArray().toStdString();
  QString shown = label.wordWrap() ? shownLines(text) : shownLine(text);
  if (mayBeCut(label)) shown = cutToFit(label, shown);
  label.setText(label.buddy() ? withoutMnemonics(shown) : shown);
}

// Cuts a label's text anew when its room or its font changes.
class Cutter : public QObject {
 public:
  explicit Cutter(QLabel* owner) : QObject(owner), label(*owner) {}

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) showText(label);
    return false;
  }

 private:
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
  if (mayBeCut(label)) label.installEventFilter(makeChild<Cutter>(&label));
}

void QtLabel::setStringValue(const std::string& text) {
  if (!widget) return;
  widget->setProperty(kRawText, QByteArray::fromStdString(text));
  showText(*widget);
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

#include "host/panes/Mnemonics.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>

#include "platform/qt/base/ShownText.h"

namespace tavrin {
namespace {

// "Alt+P" ends with the letter.
QString letterOf(const QString& text) { return QKeySequence::mnemonic(text).toString().right(1); }

}  // namespace

QString mnemonicsIn(const QWidget& widget) {
  QString taken;
  for (const QLabel* label : widget.findChildren<QLabel*>())
    if (label->buddy()) taken += letterOf(label->text());
  for (const QAbstractButton* button : widget.findChildren<QAbstractButton*>())
    taken += letterOf(button->text());
  return taken;
}

QString withFreeMnemonic(const QString& name, QString& taken) {
  for (const QChar& letter : name) {
    if (!letter.isLetterOrNumber() || taken.contains(letter, Qt::CaseInsensitive)) continue;
    taken += letter.toUpper();
    const auto place = &letter - name.constData();
    return withoutMnemonics(name.left(place)) + '&' + withoutMnemonics(name.mid(place));
  }
  return withoutMnemonics(name);
}

}  // namespace tavrin

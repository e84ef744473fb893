#pragma once

class QLabel;
class QString;
class QWidget;

namespace tavrin {

// Has a screen reader say a label's text, which has just come up and needs no answer.
void announce(QLabel& label);

// The same for what a widget shows, in words; the widget goes by them.
void announce(QWidget& widget, const QString& words);

}  // namespace tavrin

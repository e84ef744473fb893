#pragma once

class QString;
class QWidget;

// The letters after which people reach for controls with the Alt key.

namespace tavrin {

// The letters, in capitals, that the labels and buttons in the widget have taken.
QString mnemonicsIn(const QWidget& widget);

// The name with the mark "&" before its first letter or digit that is not taken, which is taken
// then; without a mark where there is none. A "&" that the name has by itself stays one to read.
QString withFreeMnemonic(const QString& name, QString& taken);

}  // namespace tavrin

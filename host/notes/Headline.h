#pragma once

class QLabel;
class QString;
class QWidget;

namespace tavrin {

// What a page of the dialog says first: a label in large, bold letters.
QLabel* makeHeadline(const QString& words, QWidget* parent);

}  // namespace tavrin

#pragma once

class QWidget;

namespace tavrin {

// The labels of a panel that stand beside their controls, each as wide as the widest of them, so
// that a program can line them up with the labels of its own forms.

// The width in pixels that the labels that are not hidden ask for; 0 for a widget without any.
int labelColumnWidth(const QWidget& panel);

// Makes the column at least that wide (pixels); 0 leaves it as wide as its labels ask for.
void setLabelColumnWidth(QWidget& panel, int pixels);

}  // namespace tavrin

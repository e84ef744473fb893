#pragma once

#include <vector>

#include "platform/qt/base/MakeChild.h"

class QComboBox;
class QFormLayout;
class QLabel;
class QString;
class QWidget;

// What every pane of the dialog builds its widgets with.

namespace tavrin {

// A label that shows a text without interpreting markup, and wraps it.
QLabel* makeTextLabel(QWidget* parent);

// A tool tip that shows a text as it is. Qt takes one for markup when it looks like it, so that it
// has to be markup at all times.
QString toolTipFor(const QString& text);

// Adds a row "label:" with a control that is reached and announced by that label. The text may
// hold a mnemonic.
QLabel* addRow(QFormLayout& form, const QString& label, QWidget& control);

// A form whose labels line up on the colon and which puts a control below its label where the
// window is too narrow for both.
QFormLayout* makeForm(QWidget* parent);

// Puts all forms and panels in the widget into one grid: their colons stand in one line, so that
// the controls above and below each other share an edge, and their rows have one rhythm. A label
// longer than most, which a PPD may have, stays by itself.
void lineUpForms(const QWidget& widget);

// Lets a pop-up be narrower than its longest item, and its list be as wide as that item.
void letPopUpShrink(QComboBox& popUp);

// Lets the Tab key go through these widgets, and through what is in them, as they are laid out;
// what a widget without a layout holds keeps its order.
void orderTabs(const std::vector<QWidget*>& widgets);

}  // namespace tavrin

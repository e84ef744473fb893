#pragma once

#include <string>

#include <QString>

namespace tavrin {

// Texts come from PPDs and strings tables. These make any bytes fit for a widget: a control
// character or a line break becomes a blank, and a monstrous text is cut and ends in an ellipsis.

// For a control of one line.
QString shownLine(const std::string& text);
// For a label of several lines: line breaks stay.
QString shownLines(const std::string& text);
// The same for a text that can be scrolled.
QString shownText(const std::string& text);
// The same text for a widget that would take "&" for a mnemonic.
QString withoutMnemonics(QString text);

}  // namespace tavrin

#pragma once

#include <string>

#include <QString>

namespace tavrin {

// A sentence for a window, fit for a label of several lines: what it quotes stands between “ and ”,
// whichever marks it came with. Sentences for terminals and logs keep their plain marks.
QString shownSentence(const std::string& sentence);

}  // namespace tavrin

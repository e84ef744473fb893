#pragma once

class QLabel;

namespace tavrin {

// Has a screen reader say a label's text, which has just come up and needs no answer.
void announce(QLabel& label);

}  // namespace tavrin

#pragma once

#include <QSize>

class QAbstractScrollArea;
class QWidget;

namespace tavrin {

// The width of a line of text that is read with ease, in pixels.
int easyLineWidth(const QWidget& text);

// The room that everything in a scroll area takes when its lines wrap at that width (pixels). No
// more of a monstrous text is measured than a screen can show.
QSize contentSize(const QAbstractScrollArea& area, int widest);

}  // namespace tavrin

#pragma once

#include <QColor>
#include <QObject>

namespace tavrin {

// How clearly two colours differ, from 1 for equal ones to 21 for black and white. A text that lets
// its background through is judged by the mixture.
double contrast(const QColor& text, const QColor& background);

// The text's colour, as faint on the background as it may be and still be readable.
QColor readable(const QColor& strongText, const QColor& background);

// Makes placeholders and the texts of what is disabled readable in whatever palette the desktop or
// the style gives, when they are too close to their background: some dark palettes have them darker
// than that. Other colours stay as they are.
class ReadablePalette : public QObject {
 public:
  // Mends the application's palette now, and whenever it changes; does nothing without an
  // application.
  ReadablePalette();

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tavrin

#pragma once

#include <QKeyEvent>

namespace tavrin {

// Whether that is the Return key or the Enter key, with no other key held.
inline bool isReturn(const QKeyEvent& key) {
  const bool alone = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  return alone && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
}

}  // namespace tavrin

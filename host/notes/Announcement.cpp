#include "host/notes/Announcement.h"

#include <QAccessible>
#include <QLabel>

namespace tavrin {

void announce(QLabel& label) { announce(label, label.text()); }

void announce(QWidget& widget, const QString& words) {
  widget.setAccessibleName(words);
  QAccessibleEvent event(&widget, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

}  // namespace tavrin

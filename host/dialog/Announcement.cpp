#include "host/dialog/Announcement.h"

#include <QAccessible>
#include <QLabel>

namespace tavrin {

void announce(QLabel& label) {
  label.setAccessibleName(label.text());
  QAccessibleEvent event(&label, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

}  // namespace tavrin

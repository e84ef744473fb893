#include "host/notes/Note.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include "host/notes/Announcement.h"
#include "host/panes/Widgets.h"

namespace tavrin {

Note::Note(QWidget* parent)
    : QWidget(parent),
      icon(makeChild<QLabel>(this)),
      label(makeTextLabel(this)),
      button(makeChild<QPushButton>(this)) {
  auto* line = makeChild<QHBoxLayout>(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(icon, 0, Qt::AlignTop);
  line->addWidget(label, 1);
  line->addWidget(button, 0, Qt::AlignTop);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, &Note::wayOutTaken);
  clear();
}

void Note::say(const QString& text, Kind kind, const QString& wayOut) {
  label->setText(text);
  button->setText(wayOut);
  button->setVisible(!wayOut.isEmpty());
  setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  // Only where it is shown: a style looks through many folders for its icons.
  const auto picture =
      kind == Kind::warning ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
  const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
  icon->setPixmap(style()->standardIcon(picture).pixmap(size));
  announce(*label);
}

QString Note::text() const { return label->text(); }

}  // namespace tavrin

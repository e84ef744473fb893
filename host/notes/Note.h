#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace tavrin {

// A sentence in the dialog that asks for attention without taking it: what went wrong or was
// done, and at most one way out beside it. Hidden while there is nothing to say.
class Note : public QWidget {
  Q_OBJECT

 public:
  enum class Kind { information, warning };

  explicit Note(QWidget* parent);

  // Shown as it is and read aloud where a screen reader runs; an empty text hides the note.
  void say(const QString& text, Kind kind = Kind::warning, const QString& wayOut = {});
  void clear() { say({}); }
  QString text() const;

 signals:
  // The person took the way out.
  void wayOutTaken();

 private:
  QLabel* icon;
  QLabel* label;
  QPushButton* button;
};

}  // namespace tavrin

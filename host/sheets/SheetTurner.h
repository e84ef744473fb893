#pragma once

#include <QWidget>

class QSpinBox;
class QToolButton;

namespace tavrin {

// The row below the sheet: turns and zooms it.
class SheetTurner : public QWidget {
  Q_OBJECT

 public:
  explicit SheetTurner(QWidget* parent);

  // Shows that the sheet with that index, of so many, is on the screen; the texts stand around its
  // number.
  void showSheet(int index, int count, const QString& before, const QString& after);
  // Whether a larger and a smaller picture can be had.
  void showZoom(bool canGrow, bool canShrink);

 signals:
  void turned(int index);
  // One step: 1 to a larger picture, -1 to a smaller one.
  void zoomed(int step);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QToolButton* button(const char* id, const QString& name, const QString& shownText);
  void addArrows();

  QToolButton* back;
  QToolButton* on;
  QSpinBox* number;
  QToolButton* smaller;
  QToolButton* larger;
};

}  // namespace tavrin

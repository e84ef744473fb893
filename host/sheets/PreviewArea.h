#pragma once

#include <optional>

#include <QTimer>
#include <QWidget>

#include "host/preview/Preview.h"
#include "host/sheets/SheetPictures.h"

class QLabel;
class QScrollArea;

namespace tavrin {

class SheetTurner;
class SheetView;

// The sheets of a job, one at a time: turned and zoomed by mouse and keyboard.
class PreviewArea : public QWidget {
  Q_OBJECT

 public:
  explicit PreviewArea(QWidget* parent);

  // Shows this job on this paper, soon.
  void show(const Preparation& job);
  // The documents are still on their way.
  void wait();
  // There is no job to show, and why; an empty reason while there is none yet.
  void showNothing(const QString& reason);
  // Drops all work until a job is shown.
  void pause();

  // Turns to a sheet, counted from 0, as far as there are sheets.
  void turnTo(int index);
  int current() const { return index; }

  QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void build();
  void connectParts();
  void follow();
  void takeSheets();
  void showSheet();
  void wantPicture();
  const OptionList& options() const { return preview.sheets().options; }
  int count() const { return preview.sheets().count(); }
  void describe();
  void describeSheet();
  void say(const QString& message);
  QString shownName() const;
  QSizeF sizeOf(int sheet) const;  // points, as it is read
  double scaleOf(int step) const;  // pixels a point
  void zoomBy(int direction);
  void setZoom(int step);
  bool turnByWheel(const QWheelEvent& event);
  bool takeKey(QKeyEvent& event);
  void drag(const QMouseEvent& event);

  Preview preview;
  SheetPictures pictures{preview};
  std::optional<Preparation> job;  // that is shown, or about to be
  QString message;                 // shown instead; empty for none
  QScrollArea* desk;
  SheetView* view;
  SheetTurner* turner;
  QLabel* contents;
  QTimer fadeTimer;
  int index = 0;
  int zoom = 0;
  int wheelAngle = 0;  // since the last notch
  bool isPaused = false;
  QPoint dragged;  // where the mouse was last, on the screen
};

}  // namespace tavrin

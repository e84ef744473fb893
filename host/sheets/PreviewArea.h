#pragma once

#include <QCache>
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include "host/preview/Preview.h"
#include "host/sheets/Paper.h"

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
  void show(const PreviewJob& job, const Paper& paper);
  // There is no job to show, and why.
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
  void follow();
  void takeSheets();
  void takePicture(int drawn, int pixels, const QByteArray& picture);
  void showSheet();
  void draw();
  void describe();
  void say(const QString& message);
  void setZoom(int step);
  bool turnByWheel(const QWheelEvent& event);

  Preview preview;
  PreviewJob job;
  QScrollArea* desk;
  SheetView* view;
  SheetTurner* turner;
  QLabel* contents;
  QCache<int, QImage> pictures;  // of these sheets at this size
  QTimer drawTimer;
  QTimer fadeTimer;
  int index = 0;
  int drawnPixels = 0;
  int zoom = 0;
};

}  // namespace tavrin

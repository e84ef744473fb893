#pragma once

#include <QCache>
#include <QImage>
#include <QObject>
#include <QTimer>

#include "host/preview/Preview.h"

namespace tavrin {

// Pictures of a preview's sheets at one size, the latest of them kept.
class SheetPictures : public QObject {
  Q_OBJECT

 public:
  // The preview outlives the pictures.
  explicit SheetPictures(Preview& preview);

  // The picture of a sheet as people read it; null while there is none.
  const QImage* of(int index) const { return pictures.object(index); }
  // Draws the sheet, soon, so that its longer side has that many pixels; answered by `drawn` unless
  // another one is wanted by then. Nothing happens where that picture is there.
  void want(int index, int pixels, SheetPainter::Ink ink);
  // There are other sheets.
  void clear() { pictures.clear(); }
  void stop() { timer.stop(); }

 signals:
  void drawn();
  void failed();

 private:
  void draw();
  void take(int index, int pixels, const QByteArray& bytes);

  Preview& preview;
  QCache<int, QImage> pictures;
  QTimer timer;  // a window that is being resized asks often
  int wantedIndex = 0;
  int wantedPixels = 0;
  SheetPainter::Ink wantedInk = SheetPainter::Ink::colour;
};

}  // namespace tavrin

#pragma once

#include <QImage>
#include <QWidget>

#include "host/printer/Paper.h"

namespace tavrin {

// A sheet of paper on a desk, with a picture of what is on it once there is one.
class SheetView : public QWidget {
  Q_OBJECT

 public:
  explicit SheetView(QWidget* parent);

  // The paper before there is a picture; its margins are drawn until then.
  void setPaper(const Paper& paper);
  // A picture of a sheet of that size, in points, takes the paper's place; a null one gives it
  // back.
  void setPicture(const QImage& picture, const QSizeF& size = {});
  // Whether the picture is about to be replaced: it fades.
  void setFaded(bool faded);
  // What is said instead of a sheet, below an icon; empty for the sheet.
  void setMessage(const QString& name, const QString& text);

  // Zoomed, the view is as large as the paper at that many pixels a point; 0 fits the paper in.
  void setScale(double pixelsPerPoint);

  // How long the longer side of a sheet of that size, in points, is in the view, in pixels of the
  // screen.
  int longSide(const QSizeF& sheet) const;
  // How many pixels a point has where the sheet fits into the view.
  double fittingScale() const;

 signals:
  // The paper has another size in the view.
  void resized();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QSizeF sheetSize() const { return picture.isNull() ? paper.size : pictureSize; }  // points
  QRectF rectOf(const QSizeF& sheet) const;
  QRectF sheetRect() const { return rectOf(sheetSize()); }
  QSizeF room() const;
  void paintPaper(QPainter& painter) const;
  void paintMessage(QPainter& painter) const;

  Paper paper;
  QImage picture;
  QSizeF pictureSize;  // points
  bool isFaded = false;
  QString name;
  QString message;
  double scale = 0;
};

}  // namespace tavrin

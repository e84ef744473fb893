#pragma once

#include <QSizeF>
#include <QWidget>

namespace tavrin {

// How a stack of paper is turned over, drawn in the colours of the palette: the printed stack with
// the edge that it is turned along, and beside it the blank one.
class TurnPicture : public QWidget {
  Q_OBJECT

 public:
  enum class Edge { longer, shorter };

  explicit TurnPicture(QWidget* parent);

  // The paper may be in any unit; only its shape matters.
  void setTurn(Edge edge, const QSizeF& paper);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool isTurnedSideways() const;
  QSizeF sheetSize() const;
  void drawStack(QPainter& painter, const QPointF& middle, bool isPrinted) const;
  void drawPrinted(QPainter& painter, const QRectF& sheet) const;
  void drawShiningThrough(QPainter& painter, const QRectF& sheet) const;
  void drawEdge(QPainter& painter, const QPointF& middle) const;
  void drawTurn(QPainter& painter, const QPointF& middle) const;

  Edge edge = Edge::longer;
  QSizeF paper{210, 297};
};

}  // namespace tavrin

#include "host/fields/SettingPictures.h"

#include <array>
#include <functional>

#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include "host/request/JobSetting.h"

namespace tavrin {
namespace {

constexpr int kSharpness = 4;  // pixels of the picture for one of the screen
constexpr double kSide = 16;   // of the square that the pictures are drawn in
constexpr QRectF kPage(3, 1, 10, 14);

using Drawing = std::function<void(QPainter&)>;

QIcon drawn(const QPalette& palette, int height, const Drawing& drawing) {
  QPixmap pixmap(height * kSharpness, height * kSharpness);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(pixmap.width() / kSide, pixmap.height() / kSide);
  painter.setPen(QPen(palette.color(QPalette::Text), 1));
  drawing(painter);
  return pixmap;
}

// A page with lines of text, the top of which is where the page's is.
void drawPage(QPainter& painter, double degrees) {
  painter.translate(kSide / 2, kSide / 2);
  painter.rotate(degrees);
  painter.translate(-kSide / 2, -kSide / 2);
  painter.drawRect(kPage);
  painter.fillRect(QRectF(5, 3.5, 6, 2), painter.pen().color());
  for (const double y : {8.5, 11.5}) painter.drawLine(QPointF(5, y), QPointF(11, y));
}

double degreesOf(const std::string& orientation) {
  if (orientation == "4") return -90;
  if (orientation == "5") return 90;
  return orientation == "6" ? 180 : 0;
}

// -1, 0 or 1 where a word of the position says the one, none or the other.
int sideIn(const std::string& position, const char* one, const char* other) {
  if (position.find(one) != std::string::npos) return -1;
  return position.find(other) != std::string::npos ? 1 : 0;
}

void drawPosition(QPainter& painter, const std::string& position) {
  painter.drawRect(kPage);
  const QPointF middle = kPage.center() + QPointF(2.5 * sideIn(position, "left", "right"),
                                                  4 * sideIn(position, "top", "bottom"));
  painter.fillRect(QRectF(middle - QPointF(1.5, 2), QSizeF(3, 4)), painter.pen().color());
}

// Where the page of that number, from 0, lies among four, in the picture.
QPointF cell(const std::string& order, int number) {
  const bool rowsFirst = order[0] == 'l' || order[0] == 'r';
  const int along = number % 2;
  const int across = number / 2;
  const bool fromRight = order.find("rl") != std::string::npos;
  const bool fromBottom = order.find("bt") != std::string::npos;
  const int column = (rowsFirst ? along : across) ^ int(fromRight);
  const int row = (rowsFirst ? across : along) ^ int(fromBottom);
  return {3.5 + 9 * column, 3.5 + 9 * row};
}

void drawOrder(QPainter& painter, const std::string& order) {
  std::array<QPointF, 4> stops;
  for (int i = 0; i < 4; ++i) stops[static_cast<std::size_t>(i)] = cell(order, i);
  painter.drawPolyline(stops.data(), int(stops.size()));
  painter.setBrush(painter.pen().color());
  painter.drawEllipse(stops[0], 1, 1);
  // The head of the arrow: behind the last stop, to both sides of the last line.
  const QPointF way = (stops[3] - stops[2]) / 9;
  const QPointF side(way.y(), -way.x());
  const std::array head{stops[3] + way, stops[3] - 3 * way + 2.5 * side,
                        stops[3] - 3 * way - 2.5 * side};
  painter.drawPolygon(head.data(), int(head.size()));
}

}  // namespace

QIcon valuePicture(const std::string& option, const std::string& value, const QPalette& palette,
                   int height) {
  if (value.empty()) return {};
  Drawing drawing;
  if (option == kOrientationOption)
    drawing = [&](QPainter& painter) { drawPage(painter, degreesOf(value)); };
  else if (option == kPositionOption)
    drawing = [&](QPainter& painter) { drawPosition(painter, value); };
  else if (option == kOrderOnSheetOption)
    drawing = [&](QPainter& painter) { drawOrder(painter, value); };
  return drawing ? drawn(palette, height, drawing) : QIcon();
}

}  // namespace tavrin

#include "Shapes.h"

#include <QVector>
#include <algorithm>
#include <cmath>

#include "Boxes.h"
#include "Stamps.h"

namespace host::look {
namespace {

void stroke(QPainter& painter, const QVector<QPointF>& line, double width, const QColor& colour) {
  const PainterState state(painter);
  painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(line.constData(), line.size());
}

double strokeWidth(const QRectF& box) {
  return std::max(1.2, std::min(box.width(), box.height()) / 8);
}

QPointF at(const QRectF& box, double x, double y) {
  return {box.x() + box.width() * x, box.y() + box.height() * y};
}

double degreesOf(Qt::ArrowType way) {
  switch (way) {
    case Qt::UpArrow:
      return 180;
    case Qt::LeftArrow:
      return 90;
    case Qt::RightArrow:
      return -90;
    default:
      return 0;
  }
}

}  // namespace

void fillRounded(QPainter& painter, const QRectF& rect, double radius, const QColor& fill) {
  drawBox(painter, rect, {radius, fill, QColor()});
}

void outlineRounded(QPainter& painter, const QRectF& rect, double radius, const QColor& outline, int width) {
  drawBox(painter, rect, {radius, QColor(), outline, width});
}

void framed(QPainter& painter, const QRectF& rect, double radius, const QColor& fill, const QColor& outline,
            int outlineWidth) {
  drawBox(painter, rect, {radius, fill, outline, outlineWidth});
}

void chevron(QPainter& painter, const QRectF& centredIn, Qt::ArrowType way, double size,
             const QColor& colour) {
  const int side = 2 * static_cast<int>(std::ceil(size / 2 + 2));
  const auto draw = [&](QPainter& onto) {
    onto.translate(side / 2.0, side / 2.0);
    onto.rotate(degreesOf(way));
    const double across = size / 2;
    const double along = size / 4;
    stroke(onto, {{-across, -along}, {0, along}, {across, -along}}, std::max(1.2, size / 6), colour);
  };
  const QPointF corner = centredIn.center() - QPointF(side, side) / 2;
  if (takesStamps(painter)) {
    const QString key = QStringLiteral("host-chevron %1 %2 %3").arg(size).arg(way).arg(colour.rgba(), 0, 16);
    return painter.drawPixmap(corner.toPoint(), stamp(painter, key, QSize(side, side), draw));
  }
  const PainterState state(painter);
  painter.translate(corner);
  draw(painter);
}

void checkMark(QPainter& painter, const QRectF& box, const QColor& colour) {
  stroke(painter, {at(box, 0.24, 0.53), at(box, 0.42, 0.71), at(box, 0.77, 0.30)}, strokeWidth(box) * 1.1,
         colour);
}

void dash(QPainter& painter, const QRectF& box, const QColor& colour) {
  stroke(painter, {at(box, 0.28, 0.5), at(box, 0.72, 0.5)}, strokeWidth(box) * 1.1, colour);
}

void crossMark(QPainter& painter, const QRectF& box, const QColor& colour) {
  const double width = strokeWidth(box) * 0.75;
  stroke(painter, {at(box, 0.28, 0.28), at(box, 0.72, 0.72)}, width, colour);
  stroke(painter, {at(box, 0.28, 0.72), at(box, 0.72, 0.28)}, width, colour);
}

}  // namespace host::look

#include "PaintChip.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>

namespace host {
namespace {

const QColor kOutline(0x80, 0x80, 0x80);  // stands out from both themes and from most colours

void drawSpotCorner(QPainter& painter, const QRectF& place) {
  const double side = place.height() * 0.6;
  const QPointF corner = place.bottomRight();
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::white);
  painter.drawPolygon(QPolygonF({corner, corner - QPointF(side, 0), corner - QPointF(0, side)}));
  painter.setBrush(Qt::black);
  painter.drawEllipse(corner - QPointF(side, side) * 0.3, 1.2, 1.2);
  painter.setBrush(Qt::NoBrush);
}

void drawChip(QPainter& painter, const QRectF& place, const ChipPaint& paint) {
  painter.fillRect(place, paint.isNone ? QColor(Qt::white) : paint.colour);
  painter.setRenderHint(QPainter::Antialiasing);
  if (paint.isNone) {
    painter.setPen(QPen(Qt::red, 2));
    painter.drawLine(place.bottomLeft() + QPointF(1, -1), place.topRight() + QPointF(-1, 1));
  }
  if (paint.isSpot) drawSpotCorner(painter, place);
  painter.setPen(kOutline);
  painter.drawRect(place.adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace

QIcon chipIcon(const ChipPaint& paint, const QSize& size) {
  const double ratio = qGuiApp->devicePixelRatio();
  QPixmap picture(size * ratio);
  picture.setDevicePixelRatio(ratio);
  QPainter painter(&picture);
  drawChip(painter, QRectF(QPointF(), size), paint);
  painter.end();
  QIcon icon(picture);
  for (const QIcon::Mode mode : {QIcon::Selected, QIcon::Disabled, QIcon::Active}) {
    icon.addPixmap(picture, mode);  // Qt's own would be tinted
  }
  return icon;
}

PaintChip::PaintChip(const QSize& size) {
  setFixedSize(size);
}

void PaintChip::show(const ChipPaint& paint) {
  paint_ = paint;
  update();
}

void PaintChip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawChip(painter, rect(), paint_);
}

}  // namespace host

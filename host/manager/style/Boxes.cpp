#include "Boxes.h"

#include <QPainter>
#include <cmath>

#include "Shapes.h"
#include "Stamps.h"

namespace host::look {
namespace {

constexpr int kLargestStamp = 32;  // pixels; larger ones are made of corners

void drawShape(QPainter& painter, const QRectF& rect, const Box& box) {
  const PainterState state(painter);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::NoBrush);
  if (box.fill.isValid()) {
    const double inset = box.outline.isValid() ? 0.5 : 0;
    painter.setBrush(box.fill);
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), box.radius, box.radius);
  }
  if (!box.outline.isValid()) return;
  const double half = box.outlineWidth / 2.0;
  painter.setPen(QPen(box.outline, box.outlineWidth));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), box.radius, box.radius);
}

QString keyOf(const Box& box) {
  const auto part = [](const QColor& colour) {
    return colour.isValid() ? QString::number(colour.rgba(), 16) : QString();
  };
  return QStringLiteral("host-box ") + QString::number(qRound(box.radius * 64)) + QLatin1Char(' ') +
         part(box.fill) + QLatin1Char(' ') + part(box.outline) + QLatin1Char(' ') +
         QString::number(box.outlineWidth);
}

QPixmap stampOf(const QPainter& painter, const QSize& size, const Box& box) {
  return stamp(painter, keyOf(box), size,
               [&](QPainter& onto) { drawShape(onto, QRectF(QPointF(), QSizeF(size)), box); });
}

void drawCorners(QPainter& painter, const QRect& rect, int corner, const Box& box) {
  const QPixmap corners = stampOf(painter, QSize(corner, corner) * 2, box);
  const int half = corners.width() / 2;
  const int right = rect.right() + 1 - corner;
  const int bottom = rect.bottom() + 1 - corner;
  painter.drawPixmap(QPoint(rect.left(), rect.top()), corners, QRect(0, 0, half, half));
  painter.drawPixmap(QPoint(right, rect.top()), corners, QRect(half, 0, half, half));
  painter.drawPixmap(QPoint(rect.left(), bottom), corners, QRect(0, half, half, half));
  painter.drawPixmap(QPoint(right, bottom), corners, QRect(half, half, half, half));
}

void drawSides(QPainter& painter, const QRect& rect, int corner, const QColor& colour, int width) {
  const int across = rect.width() - 2 * corner;
  const int along = rect.height() - 2 * corner;
  painter.fillRect(rect.left() + corner, rect.top(), across, width, colour);
  painter.fillRect(rect.left() + corner, rect.bottom() + 1 - width, across, width, colour);
  painter.fillRect(rect.left(), rect.top() + corner, width, along, colour);
  painter.fillRect(rect.right() + 1 - width, rect.top() + corner, width, along, colour);
}

void drawInside(QPainter& painter, const QRect& rect, int corner, const Box& box) {
  const int width = box.outline.isValid() ? box.outlineWidth : 0;
  const int across = rect.width() - 2 * corner;
  painter.fillRect(rect.left() + corner, rect.top() + width, across, corner - width, box.fill);
  painter.fillRect(rect.left() + corner, rect.bottom() + 1 - corner, across, corner - width, box.fill);
  painter.fillRect(rect.adjusted(width, corner, -width, -corner), box.fill);
}

}  // namespace

void drawBox(QPainter& painter, const QRectF& exact, const Box& box) {
  const QRect rect = exact.toRect();
  if (rect.isEmpty()) return;
  if (QRectF(rect) != exact || !takesStamps(painter)) return drawShape(painter, exact, box);
  const int corner = static_cast<int>(std::ceil(box.radius)) + box.outlineWidth + 1;
  if (rect.width() > 2 * corner && rect.height() > 2 * corner) {
    drawCorners(painter, rect, corner, box);
    if (box.fill.isValid()) drawInside(painter, rect, corner, box);
    if (box.outline.isValid()) drawSides(painter, rect, corner, box.outline, box.outlineWidth);
  } else if (rect.width() <= kLargestStamp && rect.height() <= kLargestStamp) {
    painter.drawPixmap(rect.topLeft(), stampOf(painter, rect.size(), box));
  } else {
    drawShape(painter, exact, box);
  }
}

}  // namespace host::look

#include "PanelGlyphs.h"

#include <QPainter>
#include <QPainterPath>

namespace host {
namespace {

constexpr qreal kStroke = 1.2;

QPainterPath lids() {
  QPainterPath path;
  path.moveTo(-6, 0);
  path.cubicTo(-3, -4.6, 3, -4.6, 6, 0);
  path.cubicTo(3, 4.6, -3, 4.6, -6, 0);
  return path;
}

void drawEye(QPainter& painter, const QColor& ink) {
  painter.drawPath(lids());
  painter.setBrush(ink);
  painter.drawEllipse(QPointF(), 1.6, 1.6);
}

void drawClosedEye(QPainter& painter) {
  QPainterPath path;
  path.moveTo(-6, -0.5);
  path.cubicTo(-3, 3.6, 3, 3.6, 6, -0.5);
  for (const QLineF& lash : {QLineF(-4, 1.5, -5, 3.6), QLineF(0, 2.6, 0, 4.8), QLineF(4, 1.5, 5, 3.6)}) {
    path.moveTo(lash.p1());
    path.lineTo(lash.p2());
  }
  painter.drawPath(path);
}

// An open shackle stands beside its body.
void drawLock(QPainter& painter, const QColor& ink, bool isOpen) {
  const qreal left = isOpen ? 0.5 : -2.5;
  QPainterPath shackle;
  shackle.moveTo(left, -0.5);
  shackle.lineTo(left, -2.5);
  shackle.arcTo(QRectF(left, -5, 5, 5), 180, -180);
  if (!isOpen) shackle.lineTo(left + 5, -0.5);
  painter.drawPath(shackle);
  const QRectF body(-4, -0.5, 8, 5.5);
  if (!isOpen) painter.setBrush(ink);
  painter.drawRect(body);
}

void drawPen(QPainter& painter, const QColor& ink) {
  painter.setBrush(ink);
  painter.drawPolygon(QPolygonF({{-4, 4}, {-3, 1}, {2, -4}, {4, -2}, {-1, 3}}));
}

}  // namespace

void drawPanelGlyph(QPainter& painter, const QPointF& middle, PanelGlyph glyph, const QColor& ink) {
  painter.save();
  painter.translate(middle);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ink, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  switch (glyph) {
    case PanelGlyph::Eye:
      drawEye(painter, ink);
      break;
    case PanelGlyph::ClosedEye:
      drawClosedEye(painter);
      break;
    case PanelGlyph::Lock:
    case PanelGlyph::OpenLock:
      drawLock(painter, ink, glyph == PanelGlyph::OpenLock);
      break;
    case PanelGlyph::Pen:
      drawPen(painter, ink);
      break;
    case PanelGlyph::Square:
      painter.fillRect(QRectF(-3, -3, 6, 6), ink);
      break;
  }
  painter.restore();
}

}  // namespace host

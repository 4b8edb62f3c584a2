#include "ToolGlyphs.h"

#include <QPainter>
#include <QPixmap>
#include <QVector>

namespace host {
namespace {

constexpr QPointF kLens{8, 8};
constexpr double kLensRadius = 5.2;

QPainterPath stroked(const QPainterPath& line, double width) {
  QPainterPathStroker pen;
  pen.setWidth(width);
  pen.setCapStyle(Qt::RoundCap);
  pen.setJoinStyle(Qt::RoundJoin);
  QPainterPath outline = pen.createStroke(line);
  outline.setFillRule(Qt::WindingFill);
  return outline;
}

QPainterPath line(const QVector<QPointF>& points) {
  QPainterPath path;
  path.addPolygon(points);
  return path;
}

QPixmap blank(double ratio) {
  QPixmap pixmap(QSize(kGlyphSide, kGlyphSide) * ratio);
  pixmap.fill(Qt::transparent);
  pixmap.setDevicePixelRatio(ratio);
  return pixmap;
}

// Four fingers, the thumb and a palm.
QPainterPath drawnHand() {
  QPainterPath palm;
  palm.moveTo(6.2, 9.5);
  palm.lineTo(15.6, 9.5);
  palm.lineTo(15.6, 13);
  palm.cubicTo(15.6, 16.6, 13.8, 18.2, 11.2, 18.2);
  palm.cubicTo(8.4, 18.2, 7.2, 16.6, 6.2, 14.8);
  palm.closeSubpath();
  const QPainterPath fingers[] = {line({{7.2, 10.5}, {7.2, 4.6}}), line({{9.7, 10.5}, {9.7, 3}}),
                                  line({{12.2, 10.5}, {12.2, 3.8}}), line({{14.7, 10.5}, {14.7, 6}}),
                                  line({{6.9, 14.6}, {3.6, 10.6}})};
  QPainterPath hand = palm;
  for (const QPainterPath& finger : fingers) hand = hand.united(stroked(finger, 1.9));
  return hand;
}

QPainterPath drawnMagnifier() {
  QPainterPath lens;
  lens.addEllipse(kLens, kLensRadius, kLensRadius);
  return stroked(lens, 1.8).united(stroked(line({{12.4, 12.4}, {16.8, 16.8}}), 3));
}

}  // namespace

QPainterPath arrowGlyph() {
  QPainterPath path = line({{5, 2}, {5, 16}, {8.6, 12.8}, {10.9, 18}, {13, 17}, {10.8, 12}, {15.4, 11.8}});
  path.closeSubpath();
  return path;
}

// What is united is drawn once: that takes long.
QPainterPath handGlyph() {
  static const QPainterPath hand = drawnHand();
  return hand;
}

QPainterPath magnifierGlyph() {
  static const QPainterPath magnifier = drawnMagnifier();
  return magnifier;
}

QPainterPath magnifierOutGlyph() {
  return magnifierGlyph().united(stroked(line({{5.8, 8}, {10.2, 8}}), 1.4));
}

QPainterPath magnifierInGlyph() {
  return magnifierOutGlyph().united(stroked(line({{8, 5.8}, {8, 10.2}}), 1.4));
}

QIcon glyphIcon(const QPainterPath& glyph, const QColor& ink) {
  QIcon icon;
  for (const int ratio : {1, 2}) {
    QPixmap pixmap = blank(ratio);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(glyph, ink);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

QCursor glyphCursor(const QPainterPath& glyph, const QPoint& hotSpot, double ratio) {
  QPixmap pixmap = blank(ratio);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.strokePath(glyph, QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(glyph, Qt::black);
  painter.end();
  return {pixmap, hotSpot.x(), hotSpot.y()};
}

}  // namespace host

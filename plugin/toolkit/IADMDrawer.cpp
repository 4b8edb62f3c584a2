#include "IADMDrawer.h"

#include <QPainter>
#include <QPen>
#include <QWidget>

#include "ControlColors.h"

namespace qRVADM {
namespace {

constexpr int kWholeWidget = -9999;  // `left` of bounds that are not known yet

QPointF PixelMiddle(int x, int y) {
  return {x + 0.5, y + 0.5};
}

// Qt's quick way with antialiased pens of one pixel leaves the corners of rectangles lighter.
QPen WithFullCorners(QPen pen) {
  if (pen.widthF() == 1.0) pen.setWidthF(1.001);
  return pen;
}

}  // namespace

IADMDrawer::IADMDrawer(QWidget* drawnWidget, DefaultPainter* ordinary)
    : IADMDrawer(drawnWidget, ordinary, {kWholeWidget, 0, 0, 0}) {}

IADMDrawer::IADMDrawer(QWidget* drawnWidget, DefaultPainter* ordinary, const ADMRect& area)
    : widget(drawnWidget), painter(nullptr), ownsPainter(true), defaultPainter(ordinary), bounds(area) {}

IADMDrawer::IADMDrawer(QWidget* drawnWidget, QPainter* activePainter, DefaultPainter* ordinary,
                       const ADMRect& area)
    : widget(drawnWidget),
      painter(activePainter),
      ownsPainter(false),
      defaultPainter(ordinary),
      bounds(area) {}

IADMDrawer::IADMDrawer(const IADMDrawer& other)
    : widget(other.widget),
      painter(other.ownsPainter ? nullptr : other.painter),
      ownsPainter(other.ownsPainter),
      defaultPainter(other.defaultPainter),
      bounds(other.bounds) {}

IADMDrawer::~IADMDrawer() = default;

void IADMDrawer::GetBoundsRect(ADMRect* rect) {
  if (bounds.left == kWholeWidget) bounds = {0, 0, widget->width(), widget->height()};
  *rect = bounds;
}

void IADMDrawer::SetColor(std::uint32_t code) {
  UseColor(ColorOfCode(*widget, code, color));
}

void IADMDrawer::SetRGBColor(const AIRGBColor& rgb) {
  UseColor({rgb.red >> 8, rgb.green >> 8, rgb.blue >> 8});
}

void IADMDrawer::UseColor(const QColor& used) {
  color = used;
  GetPainter()->setPen(QPen(color, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
}

void IADMDrawer::DrawLine(ADMPoint a, ADMPoint b) {
  GetPainter()->drawLine(PixelMiddle(a.x, a.y), PixelMiddle(b.x, b.y));
}

void IADMDrawer::DrawRect(const ADMRect& rect) {
  const QPen pen = GetPainter()->pen();
  painter->setPen(WithFullCorners(pen));
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(QRectF(PixelMiddle(rect.left, rect.top), QSizeF(Width(rect) - 1, Height(rect) - 1)));
  painter->setPen(pen);
}

void IADMDrawer::FillRect(const ADMRect& rect) {
  GetPainter()->fillRect(ToQRect(rect), color);
}

void IADMDrawer::DrawTextInBox(const char* utf8, const ADMRect& box) {
  const QString text = QString::fromUtf8(utf8);
  const QString shown = GetPainter()->fontMetrics().elidedText(text, Qt::ElideRight, Width(box));
  painter->drawText(ToQRect(box), Qt::AlignLeft | Qt::AlignVCenter, shown);
}

QPainter* IADMDrawer::GetPainter() {
  if (painter == nullptr) {
    ownPainter = std::make_unique<QPainter>(widget);
    ownPainter->setRenderHint(QPainter::Antialiasing);
    painter = ownPainter.get();
  }
  return painter;
}

void IADMDrawer::DrawDefault() {
  if (defaultPainter != nullptr) defaultPainter->Paint(GetPainter());
}

}  // namespace qRVADM

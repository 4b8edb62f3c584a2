#include "Ruler.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "DrawingView.h"
#include "Host.h"
#include "OpenDrawing.h"
#include "RulerUnits.h"

namespace host {
namespace {

constexpr int kTextSize = 10;      // pixels
constexpr int kTextInset = 3;      // pixels from its tick
constexpr int kRoomRoundMark = 2;  // pixels
constexpr int kRoomOfTicks = 6;    // pixels below the text

double lengthOf(TickSize size, double thickness) {
  switch (size) {
    case TickSize::Numbered:
      return thickness;
    case TickSize::Middle:
      return 7;
    case TickSize::Small:
      break;
  }
  return 4;
}

}  // namespace

RulerSpan rulerSpan(Qt::Orientation orientation, const View& view, const Document& document) {
  const double perUnit = document.scale() / rulerUnit(document.rulerUnits()).points;
  const AIRealPoint corner = view.toDocument({0, 0});
  const double perPixel = perUnit / view.pixelsPerUnit();
  if (orientation == Qt::Horizontal) return {corner.x * perUnit, perPixel, static_cast<double>(view.width())};
  return {corner.y * perUnit, -perPixel, static_cast<double>(view.height())};
}

QFont rulerFont() {
  QFont font;
  font.setPixelSize(kTextSize);
  return font;
}

int Ruler::thickness() {
  const QFontMetricsF metrics(rulerFont());
  double room = metrics.height() + kRoomOfTicks;
  for (const RulerUnit& choice : rulerUnits()) {
    room = std::max(room, metrics.horizontalAdvance(choice.sign) + kRoomRoundMark);
  }
  return static_cast<int>(std::ceil(room));
}

Ruler::Ruler(Qt::Orientation orientation, const DrawingView& view) : orientation_(orientation), view_(view) {
  const bool isHorizontal = orientation == Qt::Horizontal;
  setAccessibleName(isHorizontal ? "Horizontal ruler" : "Vertical ruler");
  setAttribute(Qt::WA_OpaquePaintEvent);
  if (isHorizontal) {
    setFixedHeight(thickness());
  } else {
    setFixedWidth(thickness());
  }
}

double Ruler::length() const {
  return orientation_ == Qt::Horizontal ? width() : height();
}

QRect Ruler::placeOfMark(double along) const {
  const int at = static_cast<int>(std::floor(along));
  return orientation_ == Qt::Horizontal ? QRect(at, 0, 1, height()) : QRect(0, at, width(), 1);
}

void Ruler::markPointer(const std::optional<QPointF>& pointer) {
  if (pointer_) update(placeOfMark(*pointer_));
  pointer_ = std::nullopt;
  if (!pointer) return;
  pointer_ = orientation_ == Qt::Horizontal ? pointer->x() : pointer->y();
  update(placeOfMark(*pointer_));
}

void Ruler::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  painter.setFont(rulerFont());
  painter.save();
  if (orientation_ == Qt::Vertical) {  // as if it lay, first pixel at the left: texts then run upwards
    painter.translate(0, height());
    painter.rotate(-90);
  }
  paintTicks(painter);
  painter.restore();
  if (pointer_) painter.fillRect(placeOfMark(*pointer_), palette().color(QPalette::Link));
}

void Ruler::paintTicks(QPainter& painter) const {
  const OpenDrawing& drawing = view_.drawing();
  const QFontMetricsF metrics(rulerFont());
  const RulerSpan span = rulerSpan(orientation_, drawing.shown->view, drawing.document());
  const double thick = thickness();
  const QColor line = palette().color(QPalette::Mid);
  const auto widthOf = [&](const std::string& text) {
    return metrics.horizontalAdvance(QString::fromStdString(text));
  };
  painter.setPen(palette().color(QPalette::WindowText));
  for (const RulerTick& tick : rulerTicks(span, widthOf)) {
    const double at =
        std::floor(orientation_ == Qt::Horizontal ? tick.at : length() - 1 - std::floor(tick.at));
    const double size = lengthOf(tick.size, thick);
    painter.fillRect(QRectF(at, thick - size, 1, size), line);
    painter.drawText(QPointF(at + kTextInset, metrics.ascent() - 1), QString::fromStdString(tick.text));
  }
  painter.fillRect(QRectF(0, thick - 1, length(), 1), line);
}

}  // namespace host

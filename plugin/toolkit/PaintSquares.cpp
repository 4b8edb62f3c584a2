#include "PaintSquares.h"

#include <QPainter>
#include <QPen>

#include "ColorToRGBColor.h"
#include "ControlColors.h"
#include "FillStrokeClick.h"

namespace qRVADM {
namespace {

constexpr std::uint32_t kEdgeColor = 0x636363ff;
constexpr std::uint32_t kWhiteColor = 0xffffffff;
constexpr int kHoleInset = 3;  // of the white edge of the hole

ADMRect SquareAt(ADMPoint corner) {
  return {corner.x, corner.y, corner.x + kPaintSquareSize, corner.y + kPaintSquareSize};
}

ADMRect Inset(const ADMRect& rect, int by) {
  return {rect.left + by, rect.top + by, rect.right - by, rect.bottom - by};
}

// Returns the area for the paint.
ADMRect DrawEdge(IADMDrawer& drawer, const ADMRect& square) {
  drawer.SetColor(kEdgeColor);
  drawer.DrawRect(square);
  drawer.SetColor(kWhiteColor);
  drawer.DrawRect(Inset(square, 1));
  return Inset(square, 2);
}

void FillWithPaint(IADMDrawer& drawer, const ADMRect& area, const AIColor& paint) {
  if (paint.kind == kNoneColor) {
    drawer.SetColor(kWhiteColor);
  } else {
    AIRGBColor shown{};  // black, if the host can't convert the paint
    ColorToGamutRGBColor(paint, shown);
    drawer.SetRGBColor(shown);
  }
  drawer.FillRect(area);
}

// The sign for no paint.
void DrawRedLine(IADMDrawer& drawer, const ADMRect& area) {
  QPainter& painter = *drawer.GetPainter();
  const QPen pen = painter.pen();
  painter.setPen(QPen(QColor(Qt::red), 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
  painter.drawLine(area.left + 1, area.bottom - 1, area.right - 1, area.top + 1);
  painter.setPen(pen);
}

void CutHole(IADMDrawer& drawer, const ADMRect& area) {
  const ADMRect hole = Inset(area, kHoleInset);
  drawer.SetColor(kWhiteColor);
  drawer.DrawRect(hole);
  drawer.SetColor(kEdgeColor);
  drawer.DrawRect(Inset(hole, 1));
  drawer.SetColor(kWindowColor);
  drawer.FillRect(Inset(hole, 2));
}

}  // namespace

void DrawFillSquare(IADMDrawer drawer, ADMPoint corner, const AIColor& fill) {
  const ADMRect area = DrawEdge(drawer, SquareAt(corner));
  FillWithPaint(drawer, area, fill);
  if (fill.kind == kNoneColor) DrawRedLine(drawer, area);
}

void DrawStrokeSquare(IADMDrawer drawer, ADMPoint corner, const AIColor& stroke) {
  const ADMRect area = DrawEdge(drawer, SquareAt(corner));
  FillWithPaint(drawer, area, stroke);
  CutHole(drawer, area);
  if (stroke.kind == kNoneColor) DrawRedLine(drawer, area);
}

}  // namespace qRVADM

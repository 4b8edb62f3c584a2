#include "FillStrokeClick.h"

namespace qRVADM {
namespace {

enum class Square { kNone, kFill, kStroke };

bool Covers(int corner, ADMPoint point) {
  const int end = corner + kPaintSquareSize;
  return point.x >= corner && point.y >= corner && point.x < end && point.y < end;
}

// The square that is seen at the point.
Square SquareAt(ADMPoint point, bool fillActive) {
  const bool inFill = Covers(0, point);
  const bool inStroke = Covers(kPaintSquareOffset, point);
  if (inFill && inStroke) return fillActive ? Square::kFill : Square::kStroke;
  if (inFill) return Square::kFill;
  return inStroke ? Square::kStroke : Square::kNone;
}

}  // namespace

FillStrokeClick ClickResult(ADMPoint press, ADMPoint release, bool fillActive) {
  const Square from = SquareAt(press, fillActive);
  const Square to = SquareAt(release, fillActive);
  if (from == Square::kNone || to == Square::kNone) return FillStrokeClick::kNothing;
  if (from != to) {
    return from == Square::kFill ? FillStrokeClick::kCopyFillToStroke : FillStrokeClick::kCopyStrokeToFill;
  }
  const Square below = fillActive ? Square::kStroke : Square::kFill;
  return from == below ? FillStrokeClick::kBringUp : FillStrokeClick::kNothing;
}

}  // namespace qRVADM

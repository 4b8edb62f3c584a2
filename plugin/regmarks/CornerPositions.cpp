#include "CornerPositions.h"

#include "ActiveArtboard.h"
#include "ArtBounds.h"
#include "CurrentDocument.h"
#include "FifthMark.h"
#include "MarkSquare.h"

namespace Vandrell::Corvane {
namespace {

constexpr double kFifthMarkDistance = 283.46;  // points: 100 mm, to two decimals

}  // namespace

AIErr CornerPositions(double extent, PositionList& positions, std::int32_t& failures) {
  AIRealRect frame;
  AIRealRect artboard;
  if (const AIErr error = GetArtBoundsWithoutRegmarks(frame)) return error;
  if (const AIErr error = GetActiveArtboardRect(artboard)) return error;
  frame = {frame.left - extent, frame.top + extent, frame.right + extent, frame.bottom - extent};

  const double distance = kFifthMarkDistance / GetDocumentScale();
  const auto fifth = FifthMark(frame, extent, distance);
  if (fifth && FitsOnArtboard(*fifth, extent, artboard)) positions.push_back(*fifth);

  failures = 0;
  const AIRealPoint corners[] = {{frame.left, frame.top},
                                 {frame.right, frame.top},
                                 {frame.right, frame.bottom},
                                 {frame.left, frame.bottom}};
  for (const AIRealPoint& corner : corners) {
    if (FitsOnArtboard(corner, extent, artboard)) {
      positions.push_back(corner);
    } else {
      ++failures;
    }
  }
  return kNoErr;
}

}  // namespace Vandrell::Corvane

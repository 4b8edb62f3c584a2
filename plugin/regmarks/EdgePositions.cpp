#include "EdgePositions.h"

#include "ActiveArtboard.h"
#include "CurrentDocument.h"
#include "EdgeRing.h"

namespace Vandrell::Corvane {
namespace {

// Points.
constexpr double kSpacing = 283.46456692913387;     // 100 mm
constexpr double kInset = 28.34645669291339;        // 10 mm
constexpr double kInnerDepth = 113.38582677165356;  // 40 mm

}  // namespace

AIErr EdgePositions(double extent, PositionList& positions, std::int32_t& failures) {
  AIRealRect artboard;
  if (const AIErr error = GetActiveArtboardRect(artboard)) return error;
  const double scale = GetDocumentScale();
  const double inset = kInset / scale;
  const double spacing = kSpacing / scale;
  EdgeRing(positions, failures, artboard, extent, inset, inset, spacing);
  EdgeRing(positions, failures, artboard, extent, inset, kInnerDepth / scale, spacing);
  return kNoErr;
}

}  // namespace Vandrell::Corvane

#include "AutoMarkCount.h"

#include <algorithm>
#include <cmath>

#include "ArtBounds.h"
#include "CurrentDocument.h"
#include "Truncation.h"

namespace Vandrell::Corvane {
namespace {

constexpr std::int64_t kLeastMaximum = 10;
constexpr std::int64_t kMaximumWithoutArt = 12;
constexpr double kLengthPerMark = 144.0;  // points: 2 inches

// How far the scale reaches from Few to Many.
double ScaleLength() {
  return static_cast<double>(MaxAutoMarkCount() - kFewestAutoMarks);
}

}  // namespace

std::int64_t MaxAutoMarkCount() {
  AIRealRect art;
  if (GetArtBoundsWithoutRegmarks(art) != kNoErr) return kMaximumWithoutArt;
  const double longSide = std::max(art.right - art.left, art.top - art.bottom);
  return std::max(TruncToInt64(longSide / (kLengthPerMark / GetDocumentScale())), kLeastMaximum);
}

std::int64_t AutoMarkCountFromSlider(double fraction) {
  return TruncToInt64(ScaleLength() * fraction) + kFewestAutoMarks;
}

double SliderFromAutoMarkCount(std::int64_t count) {
  const double scale = ScaleLength();
  const double wanted = static_cast<double>(count) - static_cast<double>(kFewestAutoMarks);
  const double fraction = wanted / scale;
  // A quotient that came out too small would be one mark less on its way back.
  return scale * fraction < wanted ? std::nextafter(fraction, 1.0) : fraction;
}

}  // namespace Vandrell::Corvane

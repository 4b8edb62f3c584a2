#include "RegmarkPath.h"

#include <vector>

#include "AIPath.h"
#include "AIPathStyle.h"
#include "IAIUnicodeString.h"

namespace Vandrell::Corvane {
namespace {

constexpr char kRegmarkArtName[] = "brevia Regmark";

}  // namespace

AIErr NewArtInside(AIArtHandle container, AIArtType type, AIArtHandle& art) {
  return sAIArt->NewArt(type, kPlaceInsideOnTop, container, &art);
}

AIErr SetPolygon(AIArtHandle path, const AIRealPoint* corners, std::int16_t count) {
  std::vector<AIPathSegment> segments;
  for (std::int16_t i = 0; i < count; ++i) segments.push_back({corners[i], corners[i], corners[i], 1});
  if (const AIErr error = sAIPath->SetPathSegments(path, 0, count, segments.data())) return error;
  sAIPath->SetPathClosed(path, 1);
  return kNoErr;
}

AIErr SetFillOnly(AIArtHandle path, bool filled, const AIColor& color) {
  AIPathStyle style{};
  if (filled) {
    style.fillPaint = 1;
    style.fill.color = color;
    style.fill.overprint = 1;
  }
  return sAIPathStyle->SetPathStyle(path, &style);
}

AIErr NameRegmark(AIArtHandle art) {
  const ai::UnicodeString name(kRegmarkArtName);
  return sAIArt->SetArtName(art, name.handle());
}

}  // namespace Vandrell::Corvane

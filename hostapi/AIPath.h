// Path geometry: cubic segments.
#pragma once

#include "AITypes.h"

// One anchor with its two handles. A straight side has the handles on the anchors.
struct AIPathSegment {
  AIRealPoint p, in, out;
  AIBoolean corner;
};

constexpr char kAIPathSuite[] = "AI Path Suite";
constexpr std::int32_t kAIPathSuiteVersion = 1012;

// For path art only; other art gives kWrongKindErr. The setters give kLayerLockedErr on a locked or
// hidden layer and kBadParameterErr for a coordinate that is not finite.
struct AIPathSuite {
  AIErr (*GetPathSegmentCount)(AIArtHandle path, std::int16_t* count);
  // `count` segments from index `first`, into the caller's array.
  AIErr (*GetPathSegments)(AIArtHandle path, std::int16_t first, std::int16_t count, AIPathSegment* segments);
  // Writes `count` segments from index `first`. The path grows as far as the last one written; `first`
  // may be at most the present count, else kNoSuchItemErr.
  AIErr (*SetPathSegments)(AIArtHandle path, std::int16_t first, std::int16_t count,
                           const AIPathSegment* segments);
  AIErr (*GetPathClosed)(AIArtHandle path, AIBoolean* closed);
  AIErr (*SetPathClosed)(AIArtHandle path, AIBoolean closed);
};

extern const AIPathSuite* sAIPath;

#include "ArtBounds.h"

#include <algorithm>

#include "AIArt.h"
#include "HMX_AIArt.h"
#include "HMX_AILayer.h"
#include "LayerEnumerator.h"
#include "RegmarkLayer.h"
#include "ReturnedCode.h"

namespace Vandrell::Corvane {
namespace {

// What can't be seen on paper is no artwork.
constexpr std::int32_t kArtworkBounds = kExcludeUnpaintedObjectBounds | kExcludeGuideBounds;
constexpr std::int32_t kAllBounds = 0;

// Further out on every side than art can be.
constexpr AIRealRect kNothing{1e10, -1e11, -1e11, 1e10};

char ToLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Of ASCII letters, whatever the locale.
bool EqualsIgnoringCase(const char* a, const char* b) {
  while (*a != '\0' && ToLower(*a) == ToLower(*b)) ++a, ++b;
  return ToLower(*a) == ToLower(*b);
}

AIErr IsRegmarkLayer(AILayerHandle handle, bool& isRegmarks) {
  HMX_AILayer layer(handle);
  char title[128] = "";
  if (const AIErr error = layer.GetTitle(title, sizeof title)) return error;
  isRegmarks = EqualsIgnoringCase(title, kRegmarkLayerTitle);
  return kNoErr;
}

// Widens `bounds` by the art of a layer.
AIErr UniteLayer(AILayerHandle handle, std::int32_t flags, AIRealRect& bounds) {
  HMX_AILayer layer(handle);
  HMX_AIArt group(layer.GetFirstArt());
  if (layer.lastError != kNoErr) return layer.lastError;
  AIRealRect art = kNothing;
  if (const AIErr error = group.GetTransformBounds(nullptr, flags, &art)) return error;
  bounds.left = std::min(bounds.left, art.left);
  bounds.top = std::max(bounds.top, art.top);
  bounds.right = std::max(bounds.right, art.right);
  bounds.bottom = std::min(bounds.bottom, art.bottom);
  return kNoErr;
}

AIErr UniteLayers(bool withRegmarks, std::int32_t flags, AIRealRect& bounds) {
  bounds = kNothing;
  LayerEnumerator layers{};
  AILayerHandle layer = nullptr;
  while (layers.Next(&layer)) {
    bool isRegmarks = false;
    if (!withRegmarks) {
      if (const AIErr error = IsRegmarkLayer(layer, isRegmarks)) return error;
    }
    if (isRegmarks) continue;
    if (const AIErr error = UniteLayer(layer, flags, bounds)) return error;
  }
  return kNoErr;
}

}  // namespace

AIErr GetArtBoundsWithoutRegmarks(AIRealRect& bounds) {
  return ReturnedCode([&bounds] {
    if (const AIErr error = UniteLayers(false, kArtworkBounds, bounds)) return error;
    return bounds.right > bounds.left && bounds.top > bounds.bottom ? kNoErr : kNoArtBoundsErr;
  });
}

AIErr GetBoundsOfEverything(AIRealRect& bounds) {
  return ReturnedCode([&bounds] { return UniteLayers(true, kAllBounds, bounds); });
}

}  // namespace Vandrell::Corvane

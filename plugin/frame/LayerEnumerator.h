// A walk over the layers of the current document, the topmost first.
#pragma once

#include <cstdint>

#include "AILayer.h"

// What a layer is or has, as bits of a mask.
enum LayerProperty : std::uint32_t {
  kLayerVisible = 0x1,
  kLayerPreview = 0x2,
  kLayerEditable = 0x4,
  kLayerPrinted = 0x8,
  kLayerSelected = 0x20,
  kLayerHasArt = 0x40,
  kLayerHasSelectedArt = 0x80,
  kLayerTemplate = 0x100,
  kLayerDimsPlacedImages = 0x200
};

// Made all zero it delivers every layer.
struct LayerEnumerator {
  AILayerHandle current = nullptr;  // where the walk stands; null before its first step
  std::uint32_t requiredFlags = 0;  // a layer must have all of these properties
  std::uint32_t excludedFlags = 0;  // and none of these
  bool (*accept)(AILayerHandle layer, void* acceptData) = nullptr;  // and please this test, if there is one
  void* acceptData = nullptr;

  // Goes on to the next layer that passes. False, with *out untouched, at the end or when the host
  // refuses.
  bool Next(AILayerHandle* out);

 private:
  bool Accepts(AILayerHandle layer) const;
};

// A layer of the document.
#pragma once

#include <cstddef>

#include "AILayer.h"

// Refers to the host's layer and does not own it. Every question keeps its code in lastError. Without a
// layer, or without the suite, lastError is 1 and the answer is the default named below.
class HMX_AILayer {
 public:
  explicit HMX_AILayer(AILayerHandle handle) : layer(handle) {}  // may be null
  HMX_AILayer(const HMX_AILayer&) = default;
  HMX_AILayer& operator=(const HMX_AILayer&) = default;
  virtual ~HMX_AILayer() = default;

  bool IsVisible();         // true
  bool IsPreview();         // true
  bool IsEditable();        // true
  bool IsPrinted();         // true
  bool IsSelected();        // false
  bool HasArt();            // false
  bool HasSelectedArt();    // false
  bool IsTemplate();        // false
  bool DimsPlacedImages();  // false

  // The title as NUL-terminated UTF-8, cut to `size` bytes before a whole character. Gives back
  // lastError. Throws ai::Error when the host refuses the text.
  AIErr GetTitle(char* buffer, std::size_t size);
  AIArtHandle GetFirstArt();  // the layer's root group; null by default

  AILayerHandle layer;
  AIErr lastError = kNoErr;

 private:
  using Question = AIErr (*AILayerSuite::*)(AILayerHandle layer, AIBoolean* answer);

  bool IsReachable();
  bool Ask(Question question, bool byDefault);
};

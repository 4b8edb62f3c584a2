// An art object of the document.
#pragma once

#include "AIArt.h"

// Refers to the host's object and does not own it.
class HMX_AIArt {
 public:
  explicit HMX_AIArt(AIArtHandle handle) : art(handle) {}  // may be null
  HMX_AIArt(const HMX_AIArt&) = default;
  HMX_AIArt& operator=(const HMX_AIArt&) = default;
  virtual ~HMX_AIArt() = default;

  // As GetArtTransformBounds of the host. Without art: lastError, and `bounds` stays as it is.
  AIErr GetTransformBounds(const AIRealMatrix* matrix, std::int32_t flags, AIRealRect* bounds);

  AIArtHandle art;
  AIErr lastError = kNoErr;  // of the last call to the host
};

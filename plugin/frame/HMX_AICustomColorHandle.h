// A custom colour of the document.
#pragma once

#include "AICustomColor.h"
#include "IAIUnicodeString.h"

class HMX_AICustomColorHandle {
 public:
  // Makes a new custom colour in the document, which owns it. `color` is null if the host refuses.
  HMX_AICustomColorHandle(const AICustomColor* definition, const ai::UnicodeString& name);
  HMX_AICustomColorHandle(const HMX_AICustomColorHandle&) = default;
  HMX_AICustomColorHandle& operator=(const HMX_AICustomColorHandle&) = default;
  virtual ~HMX_AICustomColorHandle() = default;

  AICustomColorHandle color = nullptr;
};

// Custom colours: named, spot or process, owned by the document.
#pragma once

#include "AIColor.h"

constexpr char kAICustomColorSuite[] = "AI Custom Color Suite";
constexpr std::int32_t kAICustomColorSuiteVersion = 1008;

struct AICustomColorSuite {
  // A name that is taken gives kBadParameterErr.
  AIErr (*NewCustomColor)(const AICustomColor* definition, AIUnicodeStringHandle name,
                          AICustomColorHandle* color);
  AIErr (*GetCustomColor)(AICustomColorHandle color, AICustomColor* definition);
  AIErr (*GetCustomColorName)(AICustomColorHandle color, AIUnicodeStringHandle name);
  // Of the current document, and there still?
  AIErr (*IsValid)(AICustomColorHandle color, AIBoolean* isValid);
};

extern const AICustomColorSuite* sAICustomColor;

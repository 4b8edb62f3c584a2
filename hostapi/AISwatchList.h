// Swatches of a document.
#pragma once

#include "AIColor.h"

constexpr char kAISwatchListSuite[] = "AI Swatch List Suite";
constexpr std::int32_t kAISwatchListSuiteVersion = 1007;

// A null list is the current document's; another list is kBadParameterErr.
struct AISwatchListSuite {
  AIErr (*CountSwatches)(AISwatchListRef list, std::int32_t* count);
  AISwatchRef (*GetNthSwatch)(AISwatchListRef list, std::int32_t index);  // null beyond the end
  // The first swatch of this exact name whose paint is of the kind `type`; null if there is none.
  AISwatchRef (*GetSwatchByNameAndType)(AISwatchListRef list, AIUnicodeStringHandle name, AIColorTag type);
  AIErr (*GetAIColor)(AISwatchRef swatch, AIColor* color);
  AIErr (*GetSwatchName)(AISwatchRef swatch, AIUnicodeStringHandle name);
  AIErr (*SetSwatchName)(AISwatchRef swatch, AIUnicodeStringHandle name);
};

extern const AISwatchListSuite* sAISwatchList;

// Groups of swatches.
#pragma once

#include "AIColor.h"

constexpr char kAISwatchGroupSuite[] = "AI Swatch Group Suite";
constexpr std::int32_t kAISwatchGroupSuiteVersion = 1003;

constexpr std::int32_t kAISwatchGroupKindPlain = 0;

struct AISwatchGroupSuite {
  AISwatchGroupRef (*GetGroupByName)(AISwatchListRef list, AIUnicodeStringHandle name);  // null if none
  // An empty, unnamed group at `position` of the list's groups, -1 at their end. Null on failure.
  AISwatchGroupRef (*NewGroup)(AISwatchListRef list, std::int32_t kind, std::int32_t position);
  AIErr (*SetGroupName)(AISwatchGroupRef group, AIUnicodeStringHandle name);
  // A new swatch of this paint at the end of the group; for a custom colour it takes the colour's name.
  // `options` is 0. Null on failure.
  AISwatchRef (*AddSwatch)(AISwatchGroupRef group, const AIColor* color, std::int32_t options);
};

extern const AISwatchGroupSuite* sAISwatchGroup;

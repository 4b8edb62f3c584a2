// Art of the current document found by what it is.
#pragma once

#include "AITypes.h"

constexpr char kAIMatchingArtSuite[] = "AI Matching Art Suite";
constexpr std::int32_t kAIMatchingArtSuiteVersion = 1007;

struct AIMatchingArtSuite {
  // The selected art of all layers, in no order: objects only, no groups and no paths inside a compound path.
  // *matches is a block that the caller gives back with FreeBlock of the SP Blocks Suite; null if nothing is
  // selected. A null `matches` asks for the number alone. kNoDocumentErr without a document.
  AIErr (*GetSelectedArt)(AIArtHandle** matches, std::int32_t* count);
};

extern const AIMatchingArtSuite* sAIMatchingArt;

// Artboards of the current document.
#pragma once

#include "AITypes.h"

constexpr char kAIArtboardSuite[] = "AI Artboard Suite";
constexpr std::int32_t kAIArtboardSuiteVersion = 1004;

// A list is a copy of the document's artboards at the time of the call, owned by the caller until
// DisposeArtboardList; properties are a copy likewise. Indices count from 0; beyond the end is
// kNoSuchItemErr.
struct AIArtboardSuite {
  AIErr (*GetArtboardList)(AIArtboardListHandle* list);
  AIErr (*DisposeArtboardList)(AIArtboardListHandle list);
  AIErr (*GetCount)(AIArtboardListHandle list, std::int32_t* count);
  AIErr (*GetActive)(AIArtboardListHandle list, std::int32_t* index);
  AIErr (*GetArtboardProperties)(AIArtboardListHandle list, std::int32_t index,
                                 AIArtboardPropertiesHandle* properties);
  AIErr (*DisposeArtboardProperties)(AIArtboardPropertiesHandle properties);
  AIErr (*GetPosition)(AIArtboardPropertiesHandle properties, AIRealRect* position);
  AIErr (*GetName)(AIArtboardPropertiesHandle properties, AIUnicodeStringHandle name);
};

extern const AIArtboardSuite* sAIArtboard;

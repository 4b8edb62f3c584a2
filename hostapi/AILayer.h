// Layers of the current document, from the top of the stack down.
#pragma once

#include "AIArt.h"

constexpr char kAILayerSuite[] = "AI Layer Suite";
constexpr std::int32_t kAILayerSuiteVersion = 1013;

// Without a document every entry gives kNoDocumentErr.
struct AILayerSuite {
  AIErr (*CountLayers)(std::int32_t* count);
  AIErr (*GetNthLayer)(std::int32_t index, AILayerHandle* layer);       // 0 is the top; kNoSuchItemErr beyond
  AIErr (*GetFirstLayer)(AILayerHandle* layer);                         // the topmost
  AIErr (*GetNextLayer)(AILayerHandle previous, AILayerHandle* layer);  // null at the end, with success
  // The topmost layer of exactly this title; null if there is none, with success.
  AIErr (*GetLayerByTitle)(AIUnicodeStringHandle title, AILayerHandle* layer);
  // A new, visible, unlocked layer with an empty title. `reference` is null with kPlaceAboveAll and
  // kPlaceBelowAll.
  AIErr (*InsertLayer)(AILayerHandle reference, AIPaintOrder order, AILayerHandle* layer);
  // With all its art. kBadParameterErr for the only layer of a document.
  AIErr (*DeleteLayer)(AILayerHandle layer);
  AIErr (*GetLayerTitle)(AILayerHandle layer, AIUnicodeStringHandle title);
  AIErr (*SetLayerTitle)(AILayerHandle layer, AIUnicodeStringHandle title);
  AIErr (*GetLayerVisible)(AILayerHandle layer, AIBoolean* visible);
  AIErr (*SetLayerVisible)(AILayerHandle layer, AIBoolean visible);
  AIErr (*GetLayerPreview)(AILayerHandle layer, AIBoolean* preview);
  AIErr (*GetLayerEditable)(AILayerHandle layer, AIBoolean* editable);  // false: locked
  AIErr (*SetLayerEditable)(AILayerHandle layer, AIBoolean editable);
  AIErr (*GetLayerPrinted)(AILayerHandle layer, AIBoolean* printed);
  AIErr (*GetLayerSelected)(AILayerHandle layer, AIBoolean* selected);
  AIErr (*LayerHasArt)(AILayerHandle layer, AIBoolean* hasArt);
  AIErr (*LayerHasSelectedArt)(AILayerHandle layer, AIBoolean* hasSelectedArt);
  AIErr (*GetLayerIsTemplate)(AILayerHandle layer, AIBoolean* isTemplate);
  AIErr (*GetLayerDimPlacedImages)(AILayerHandle layer, AIBoolean* dimmed);
};

extern const AILayerSuite* sAILayer;

#include "RegmarkLayer.h"

#include "AIArt.h"
#include "AILayer.h"
#include "IAIUnicodeString.h"
#include "ReturnedCode.h"

namespace Vandrell::Corvane {
namespace {

AIErr FindLayer(AILayerHandle& layer) {
  const ai::UnicodeString title(kRegmarkLayerTitle);
  return sAILayer->GetLayerByTitle(title.handle(), &layer);
}

AIErr InsertLayerOnTop(AILayerHandle& layer) {
  return sAILayer->InsertLayer(nullptr, kPlaceAboveAll, &layer);
}

AIErr FindOrInsertLayer(AILayerHandle& layer) {
  if (const AIErr error = FindLayer(layer)) return error;
  if (layer != nullptr) return kNoErr;
  if (const AIErr error = InsertLayerOnTop(layer)) return error;
  const ai::UnicodeString title(kRegmarkLayerTitle);
  sAILayer->SetLayerTitle(layer, title.handle());
  return kNoErr;
}

AIErr FindGroup(AIArtHandle& group) {
  AILayerHandle layer = nullptr;
  if (const AIErr error = FindOrInsertLayer(layer)) return error;
  return sAIArt->GetFirstArtOfLayer(layer, &group);
}

AIErr DeleteLayerIfAny() {
  AILayerHandle layer = nullptr;
  if (const AIErr error = FindLayer(layer)) return error;
  if (layer == nullptr) return kNoErr;

  std::int32_t layerCount = 0;
  if (const AIErr error = sAILayer->CountLayers(&layerCount)) return error;
  if (layerCount < 2) {
    // A document always has a layer, so another must be there before its only one can go.
    AILayerHandle successor = nullptr;
    if (const AIErr error = InsertLayerOnTop(successor)) return error;
  }
  return sAILayer->DeleteLayer(layer);
}

}  // namespace

AIArtHandle GetRegmarkGroup() {
  AIArtHandle group = nullptr;
  const AIErr error = ReturnedCode([&group] { return FindGroup(group); });
  return error == kNoErr ? group : nullptr;
}

AIErr ClearRegmarkLayer() {
  return ReturnedCode(DeleteLayerIfAny);
}

}  // namespace Vandrell::Corvane

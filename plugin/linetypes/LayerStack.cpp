#include "LayerStack.h"

namespace Vandrell::Corvane {

AIErr ListLayers(std::vector<AILayerHandle>& layers) {
  layers.clear();
  std::int32_t count = 0;
  if (const AIErr error = sAILayer->CountLayers(&count)) return error;
  for (std::int32_t index = 0; index < count; ++index) {
    AILayerHandle layer = nullptr;
    if (const AIErr error = sAILayer->GetNthLayer(index, &layer)) return error;
    if (layer == nullptr) return kNoSuchItemErr;
    layers.push_back(layer);
  }
  return kNoErr;
}

}  // namespace Vandrell::Corvane

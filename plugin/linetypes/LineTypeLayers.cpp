#include "LineTypeLayers.h"

#include <algorithm>

#include "AIArt.h"
#include "AILayer.h"
#include "IAIUnicodeString.h"
#include "LayerStack.h"
#include "ReservedLayers.h"
#include "ReturnedCode.h"

namespace Vandrell::Corvane {
namespace {

// What the host refuses to tell counts as not there.
std::vector<std::string> MissingNames(const std::vector<std::string>& names) {
  std::vector<std::string> missing;
  for (const std::string& name : names) {
    AILayerHandle layer = nullptr;
    if (FindLineTypeLayer(name, layer) != kNoErr || layer == nullptr) missing.push_back(name);
  }
  return missing;
}

bool ReservedLayersAreOnTop() {
  std::vector<AILayerHandle> layers;
  if (ListLayers(layers) != kNoErr) return false;
  return std::is_partitioned(layers.begin(), layers.end(), IsReservedLayer);
}

// The lowest of the reserved layers at the top; null if there is none.
AILayerHandle LowestReservedLayer() {
  std::vector<AILayerHandle> layers;
  ListLayers(layers);
  const auto end = std::find_if_not(layers.begin(), layers.end(), IsReservedLayer);
  return end == layers.begin() ? nullptr : *(end - 1);
}

// `anchor`: the layer above, or null for the very top; the new layer afterwards.
AIErr InsertLayerBelow(AILayerHandle& anchor, const std::string& name) {
  const ai::UnicodeString title(name);
  AILayerHandle layer = nullptr;
  const AIPaintOrder order = anchor == nullptr ? kPlaceAboveAll : kPlaceBelow;
  if (const AIErr error = sAILayer->InsertLayer(anchor, order, &layer)) return error;
  if (layer == nullptr) return kNoSuchItemErr;
  anchor = layer;
  return sAILayer->SetLayerTitle(layer, title.handle());
}

}  // namespace

AIErr FindLineTypeLayer(const std::string& name, AILayerHandle& layer) {
  return ReturnedCode([&] {
    const ai::UnicodeString title(name);
    return sAILayer->GetLayerByTitle(title.handle(), &layer);
  });
}

AIErr CreateLineTypeLayers(const std::vector<std::string>& names) {
  const std::vector<std::string> missing = MissingNames(names);
  if (missing.empty()) return kNoErr;
  if (!ReservedLayersAreOnTop()) {
    if (const AIErr error = MoveReservedLayersToTop()) return error;
  }
  AILayerHandle anchor = LowestReservedLayer();
  for (const std::string& name : missing) {
    const AIErr error = ReturnedCode([&] { return InsertLayerBelow(anchor, name); });
    if (error != kNoErr) return error;
  }
  return kNoErr;
}

AIErr EnsureLineTypeLayer(const std::string& name) {
  return CreateLineTypeLayers({name});
}

}  // namespace Vandrell::Corvane

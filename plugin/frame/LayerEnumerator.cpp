#include "LayerEnumerator.h"

#include "HMX_AILayer.h"

namespace {

struct PropertyQuestion {
  LayerProperty property;
  bool (HMX_AILayer::*ask)();
};

constexpr PropertyQuestion kQuestions[] = {
    {kLayerVisible, &HMX_AILayer::IsVisible},
    {kLayerPreview, &HMX_AILayer::IsPreview},
    {kLayerEditable, &HMX_AILayer::IsEditable},
    {kLayerPrinted, &HMX_AILayer::IsPrinted},
    {kLayerSelected, &HMX_AILayer::IsSelected},
    {kLayerHasArt, &HMX_AILayer::HasArt},
    {kLayerHasSelectedArt, &HMX_AILayer::HasSelectedArt},
    {kLayerTemplate, &HMX_AILayer::IsTemplate},
    {kLayerDimsPlacedImages, &HMX_AILayer::DimsPlacedImages},
};

std::uint32_t PropertiesOf(AILayerHandle handle) {
  HMX_AILayer layer(handle);
  std::uint32_t properties = 0;
  for (const PropertyQuestion& question : kQuestions) {
    if ((layer.*question.ask)()) properties |= question.property;
  }
  return properties;
}

}  // namespace

bool LayerEnumerator::Accepts(AILayerHandle layer) const {
  const std::uint32_t properties = PropertiesOf(layer);
  if ((properties & requiredFlags) != requiredFlags || (properties & excludedFlags) != 0) return false;
  return accept == nullptr || accept(layer, acceptData);
}

bool LayerEnumerator::Next(AILayerHandle* out) {
  AIErr error =
      current == nullptr ? sAILayer->GetNthLayer(0, &current) : sAILayer->GetNextLayer(current, &current);
  while (error == kNoErr && current != nullptr) {
    if (Accepts(current)) {
      *out = current;
      return true;
    }
    error = sAILayer->GetNextLayer(current, &current);
  }
  return false;
}

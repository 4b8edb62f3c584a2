#include "HMX_AILayer.h"

#include "CopyUTF8.h"
#include "IAIUnicodeString.h"

bool HMX_AILayer::IsReachable() {
  if (sAILayer != nullptr && layer != nullptr) return true;
  lastError = 1;
  return false;
}

bool HMX_AILayer::Ask(Question question, bool byDefault) {
  if (!IsReachable()) return byDefault;
  AIBoolean answer = byDefault ? 1 : 0;
  lastError = (sAILayer->*question)(layer, &answer);
  return answer != 0;
}

bool HMX_AILayer::IsVisible() {
  return Ask(&AILayerSuite::GetLayerVisible, true);
}

bool HMX_AILayer::IsPreview() {
  return Ask(&AILayerSuite::GetLayerPreview, true);
}

bool HMX_AILayer::IsEditable() {
  return Ask(&AILayerSuite::GetLayerEditable, true);
}

bool HMX_AILayer::IsPrinted() {
  return Ask(&AILayerSuite::GetLayerPrinted, true);
}

bool HMX_AILayer::IsSelected() {
  return Ask(&AILayerSuite::GetLayerSelected, false);
}

bool HMX_AILayer::HasArt() {
  return Ask(&AILayerSuite::LayerHasArt, false);
}

bool HMX_AILayer::HasSelectedArt() {
  return Ask(&AILayerSuite::LayerHasSelectedArt, false);
}

bool HMX_AILayer::IsTemplate() {
  return Ask(&AILayerSuite::GetLayerIsTemplate, false);
}

bool HMX_AILayer::DimsPlacedImages() {
  return Ask(&AILayerSuite::GetLayerDimPlacedImages, false);
}

AIErr HMX_AILayer::GetTitle(char* buffer, std::size_t size) {
  if (!IsReachable()) return lastError;
  ai::UnicodeString title;
  lastError = sAILayer->GetLayerTitle(layer, title.handle());
  CopyUTF8(buffer, title.as_UTF8().c_str(), size);
  return lastError;
}

AIArtHandle HMX_AILayer::GetFirstArt() {
  if (!IsReachable()) return nullptr;
  AIArtHandle art = nullptr;
  lastError = sAIArt->GetFirstArtOfLayer(layer, &art);
  return art;
}

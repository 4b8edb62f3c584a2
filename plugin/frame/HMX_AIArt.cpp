#include "HMX_AIArt.h"

AIErr HMX_AIArt::GetTransformBounds(const AIRealMatrix* matrix, std::int32_t flags, AIRealRect* bounds) {
  if (art != nullptr) lastError = sAIArt->GetArtTransformBounds(art, matrix, flags, bounds);
  return lastError;
}

#include "ReservedLayers.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "AIArt.h"
#include "IAIUnicodeString.h"
#include "LayerStack.h"
#include "ReturnedCode.h"

namespace Vandrell::Corvane {
namespace {

constexpr std::string_view kReservedTitles[] = {"Ostrel Marks", "Lumenfold"};

bool IsReservedTitle(std::string_view title) {
  return std::find(std::begin(kReservedTitles), std::end(kReservedTitles), title) !=
         std::end(kReservedTitles);
}

// A new layer on top, and a copy of `layer` above that.
AIErr CopyToTop(AILayerHandle layer, AILayerHandle& spare) {
  if (const AIErr error = sAILayer->InsertLayer(nullptr, kPlaceAboveAll, &spare)) return error;
  AIArtHandle spareRoot = nullptr;
  if (const AIErr error = sAIArt->GetFirstArtOfLayer(spare, &spareRoot)) return error;
  AIArtHandle root = nullptr;
  if (const AIErr error = sAIArt->GetFirstArtOfLayer(layer, &root)) return error;
  AIArtHandle copy = nullptr;
  return sAIArt->DuplicateArt(root, kPlaceAbove, spareRoot, &copy);
}

AIErr MoveToTop(AILayerHandle layer) {
  AILayerHandle spare = nullptr;
  if (const AIErr error = CopyToTop(layer, spare)) return error;
  ai::UnicodeString title;
  if (const AIErr error = sAILayer->GetLayerTitle(layer, title.handle())) return error;
  if (const AIErr error = sAILayer->DeleteLayer(layer)) return error;
  if (const AIErr error = sAILayer->DeleteLayer(spare)) return error;
  AILayerHandle copy = nullptr;
  if (const AIErr error = sAILayer->GetFirstLayer(&copy)) return error;
  return sAILayer->SetLayerTitle(copy, title.handle());
}

}  // namespace

bool IsReservedLayer(AILayerHandle layer) {
  bool isReserved = false;
  ReturnedCode([&] {
    ai::UnicodeString title;
    const AIErr error = sAILayer->GetLayerTitle(layer, title.handle());
    isReserved = error == kNoErr && IsReservedTitle(title.as_UTF8());
    return error;
  });
  return isReserved;
}

AIErr MoveReservedLayersToTop() {
  std::vector<AILayerHandle> layers;
  if (const AIErr error = ListLayers(layers)) return error;
  for (AILayerHandle layer : layers) {
    if (!IsReservedLayer(layer)) continue;
    if (const AIErr error = ReturnedCode([layer] { return MoveToTop(layer); })) return error;
  }
  return kNoErr;
}

}  // namespace Vandrell::Corvane

#include "MoveSelection.h"

#include "AIArt.h"
#include "HMX_AILayer.h"
#include "LineTypeLayers.h"
#include "LineTypeOfArt.h"
#include "SelectionScan.h"
#include "SelectionTexts.h"
#include "ShowCriticalMessage.h"

namespace Vandrell::Corvane {
namespace {

// False if the art stays, for another reason than its layer's state.
bool Move(AIArtHandle art, const std::set<std::string>& names, std::set<AIArtHandle>& blocked) {
  std::string name;
  return LineTypeNameOfArt(art, name) && names.count(name) > 0 && EnsureLineTypeLayer(name) == kNoErr &&
         MoveArtToLineTypeLayer(art, name, blocked) == kNoErr;
}

}  // namespace

AIErr MoveArtToLineTypeLayer(AIArtHandle art, const std::string& name, std::set<AIArtHandle>& blocked) {
  AILayerHandle found = nullptr;
  if (const AIErr error = FindLineTypeLayer(name, found)) return error;
  if (found == nullptr) return kNoErr;
  HMX_AILayer layer(found);
  if (!layer.IsVisible() || !layer.IsEditable()) {
    blocked.insert(art);
    return kNoErr;
  }
  AIArtHandle root = nullptr;
  if (const AIErr error = sAIArt->GetFirstArtOfLayer(found, &root)) return error;
  return sAIArt->ReorderArt(art, kPlaceInsideOnBottom, root);
}

AIErr MoveSelection(const std::set<std::string>& names) {
  if (names.empty()) return kNoErr;
  SelectionScan scan;
  ScanSelection(scan);
  std::set<AIArtHandle> blocked;
  for (AIArtHandle art : scan.supported) {
    if (!Move(art, names, blocked)) scan.unsupported.insert(art);
  }
  if (!blocked.empty()) qRVADM::ShowCriticalMessage(kLayersBlockedText);
  if (!scan.unsupported.empty()) qRVADM::ShowCriticalMessage(kNotAllMovedText);
  return kNoErr;
}

}  // namespace Vandrell::Corvane

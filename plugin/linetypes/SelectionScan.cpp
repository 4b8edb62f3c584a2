#include "SelectionScan.h"

#include "AIArt.h"
#include "AILayer.h"
#include "AIMatchingArt.h"
#include "LayerStack.h"
#include "ReservedLayers.h"

namespace Vandrell::Corvane {
namespace {

// The object of the layer's root group that holds the art, or the art itself if there is no way there.
AIArtHandle TopLevelObject(AIArtHandle art, AILayerHandle layer) {
  AIArtHandle root = nullptr;
  if (sAIArt->GetFirstArtOfLayer(layer, &root) != kNoErr) return art;
  AIArtHandle object = art;
  AIArtHandle parent = nullptr;
  while (sAIArt->GetArtParent(object, &parent) == kNoErr && parent != nullptr) {
    if (parent == root) return object;
    object = parent;
  }
  return art;
}

bool CanBeLineType(AIArtHandle art, std::int16_t type) {
  if (type != kPathArt && type != kCompoundPathArt) return false;
  std::int32_t clips = 0;
  return sAIArt->GetArtUserAttr(art, kArtIsClipMask, &clips) == kNoErr && (clips & kArtIsClipMask) == 0;
}

class Scanner {
 public:
  explicit Scanner(SelectionScan& result) : scan(result) {}

  void Visit(AIArtHandle art) {
    std::int16_t type = kUnknownArt;
    if (sAIArt->GetArtType(art, &type) != kNoErr) return;
    if (type == kGroupArt) return VisitChildren(art);
    std::int32_t selected = 0;
    const AIErr error = sAIArt->GetArtUserAttr(art, kArtSelected, &selected);
    if (error == kNoErr && (selected & kArtSelected) != 0) Sort(art, type);
  }

 private:
  void VisitChildren(AIArtHandle group) {
    AIArtHandle child = nullptr;
    AIErr error = sAIArt->GetArtFirstChild(group, &child);
    while (error == kNoErr && child != nullptr) {
      Visit(child);
      AIArtHandle sibling = nullptr;
      error = sAIArt->GetArtSibling(child, &sibling);
      child = sibling;
    }
  }

  void Sort(AIArtHandle art, std::int16_t type) {
    AILayerHandle layer = nullptr;
    if (sAIArt->GetLayerOfArt(art, &layer) != kNoErr || layer == nullptr) {
      scan.unsupported.insert(art);
    } else if (IsReserved(layer)) {
      scan.unsupported.insert(TopLevelObject(art, layer));
    } else if (!CanBeLineType(art, type)) {
      scan.unsupported.insert(art);
    } else {
      scan.supported.push_back(art);
    }
  }

  // Neighbours mostly share a layer.
  bool IsReserved(AILayerHandle layer) {
    if (layer != lastLayer) lastIsReserved = IsReservedLayer(layer);
    lastLayer = layer;
    return lastIsReserved;
  }

  SelectionScan& scan;
  AILayerHandle lastLayer = nullptr;
  bool lastIsReserved = false;
};

// False if the host refuses an answer.
bool ScanLayer(AILayerHandle layer, Scanner& scanner) {
  AIBoolean hasSelected = 0;
  if (sAILayer->LayerHasSelectedArt(layer, &hasSelected) != kNoErr) return false;
  if (hasSelected == 0) return true;
  AIArtHandle root = nullptr;
  if (sAIArt->GetFirstArtOfLayer(layer, &root) != kNoErr) return false;
  if (root != nullptr) scanner.Visit(root);
  return true;
}

}  // namespace

void ScanSelection(SelectionScan& scan) {
  std::vector<AILayerHandle> layers;
  ListLayers(layers);
  Scanner scanner(scan);
  for (AILayerHandle layer : layers) {
    if (!ScanLayer(layer, scanner)) return;
  }
}

bool HasSelectedArt() {
  std::int32_t count = 0;
  return sAIMatchingArt->GetSelectedArt(nullptr, &count) == kNoErr && count > 0;
}

}  // namespace Vandrell::Corvane

#include "AIArt.h"

#include "Bounds.h"
#include "Duplicate.h"
#include "Entry.h"
#include "Lookup.h"
#include "SelectionCommands.h"
#include "Suites.h"

namespace host {
namespace {

bool isInside(AIPaintOrder order) {
  return order == kPlaceInsideOnTop || order == kPlaceInsideOnBottom;
}
bool isBeside(AIPaintOrder order) {
  return order == kPlaceAbove || order == kPlaceBelow;
}
bool isExtreme(AIPaintOrder order) {
  return order == kPlaceAboveAll || order == kPlaceBelowAll;
}

// Where art is to go: the document and the art that `order` refers to, 0 for the current layer.
struct Target {
  Document* document = nullptr;
  ArtId reference = 0;
  AIErr error = kNoErr;
};

Target targetAtExtreme(Document* document, AIArtHandle prep) {
  if (prep != nullptr) return {nullptr, 0, kBadParameterErr};
  if (document == nullptr) return {nullptr, 0, kNoDocumentErr};
  const Layer* layer = document->layer(document->state().currentLayer);
  const bool editable = layer != nullptr && document->isEditable(layer->root);
  return {document, 0, editable ? kNoErr : kLayerLockedErr};
}

// The container that the art would lie in must be open to changes.
Target findTarget(Host& host, AIPaintOrder order, AIArtHandle prep) {
  if (isExtreme(order)) return targetAtExtreme(host.currentDocument(), prep);
  const ArtRef reference = findArt(host, prep);
  if (!reference || (!isInside(order) && !isBeside(order))) return {nullptr, 0, kBadParameterErr};
  const ArtId container = isInside(order) ? reference.id : reference->parent;
  if (container == 0) return {nullptr, 0, kWrongKindErr};  // beside the root group of a layer
  const bool editable = reference.document->isEditable(container);
  return {reference.document, reference.id, editable ? kNoErr : kLayerLockedErr};
}

AIErr newArt(Host& host, AIArtType type, AIPaintOrder order, AIArtHandle prep, AIArtHandle* art) {
  const bool canMake = type == kPathArt || type == kCompoundPathArt || type == kGroupArt;
  if (!canMake || art == nullptr) return kBadParameterErr;
  const Target target = findTarget(host, order, prep);
  if (target.error != kNoErr) return target.error;
  const std::optional<ArtId> id = target.document->newArt(type, order, target.reference);
  if (!id) return kWrongKindErr;
  *art = artHandle(*target.document, *id);
  return kNoErr;
}

// Art that a plug-in may take out of its place. A layer's root group never leaves the layer.
AIErr checkMovable(const ArtRef& art) {
  if (!art || art->parent == 0) return kBadParameterErr;
  return art.document->isEditable(art.id) ? kNoErr : kLayerLockedErr;
}

AIErr disposeArt(Host& host, AIArtHandle handle) {
  const ArtRef art = findArt(host, handle);
  if (const AIErr error = checkMovable(art)) return error;
  art.document->deleteArt(art.id);
  return kNoErr;
}

AIErr reorderArt(Host& host, AIArtHandle handle, AIPaintOrder order, AIArtHandle prep) {
  const ArtRef art = findArt(host, handle);
  if (const AIErr error = checkMovable(art)) return error;
  const Target target = findTarget(host, order, prep);
  if (target.error != kNoErr) return target.error;
  if (target.document != art.document || art.document->isWithin(target.reference, art.id)) {
    return kBadParameterErr;
  }
  return art.document->moveArt(art.id, order, target.reference) ? kNoErr : kWrongKindErr;
}

AIErr duplicateLayerOf(const ArtRef& root, AIPaintOrder order, const ArtRef& beside, AIArtHandle* copy) {
  if (beside.document != root.document) return kBadParameterErr;
  const LayerId layer = duplicateLayer(*root.document, root->rootOf, order, beside->rootOf);
  *copy = artHandle(*root.document, root.document->layer(layer)->root);
  return kNoErr;
}

AIErr duplicate(Host& host, AIArtHandle handle, AIPaintOrder order, AIArtHandle prep, AIArtHandle* copy) {
  const ArtRef art = findArt(host, handle);
  if (!art || copy == nullptr) return kBadParameterErr;
  const ArtRef reference = findArt(host, prep);
  const bool ofLayers = reference && reference->parent == 0 && isBeside(order);
  if (ofLayers && art->parent == 0) return duplicateLayerOf(art, order, reference, copy);
  const Target target = findTarget(host, order, prep);
  if (target.error != kNoErr) return target.error;
  if (target.document != art.document) return kBadParameterErr;
  const bool within = art.document->isWithin(target.reference, art.id);
  const std::optional<ArtId> id = duplicateArt(*art.document, art.id, order, target.reference);
  if (!id) return within ? kBadParameterErr : kWrongKindErr;
  *copy = artHandle(*art.document, *id);
  return kNoErr;
}

AIErr getFirstArtOfLayer(Host& host, AILayerHandle handle, AIArtHandle* art) {
  const Document* current = host.currentDocument();
  if (current == nullptr) return kNoDocumentErr;
  if (handle == nullptr) handle = layerHandle(*current, current->state().currentLayer);
  const LayerRef layer = findLayer(host, handle);
  if (!layer || art == nullptr) return kBadParameterErr;
  *art = artHandle(*layer.document, layer->root);
  return kNoErr;
}

template <ArtId Art::*Neighbour>
AIErr getNeighbour(Host& host, AIArtHandle handle, AIArtHandle* neighbour) {
  const ArtRef art = findArt(host, handle);
  if (!art || neighbour == nullptr) return kBadParameterErr;
  *neighbour = artHandle(*art.document, art.record->*Neighbour);
  return kNoErr;
}

AIErr getArtType(Host& host, AIArtHandle handle, std::int16_t* type) {
  const ArtRef art = findArt(host, handle);
  if (!art || type == nullptr) return kBadParameterErr;
  *type = art->type;
  return kNoErr;
}

AIErr getLayerOfArt(Host& host, AIArtHandle handle, AILayerHandle* layer) {
  const ArtRef art = findArt(host, handle);
  if (!art || layer == nullptr) return kBadParameterErr;
  *layer = layerHandle(*art.document, art.document->layerOfArt(art.id));
  return kNoErr;
}

// Clips belong to the art that they cut, so none of it is a mask.
AIErr getArtUserAttr(Host& host, AIArtHandle handle, std::int32_t which, std::int32_t* attributes) {
  const ArtRef art = findArt(host, handle);
  if (!art || attributes == nullptr) return kBadParameterErr;
  std::int32_t all = 0;
  if (art.document->holdsSelected(art.id)) all |= kArtSelected;
  if (art->locked) all |= kArtLocked;
  if (art->hidden) all |= kArtHidden;
  *attributes = all & which;
  return kNoErr;
}

AIErr setArtUserAttr(Host& host, AIArtHandle handle, std::int32_t which, std::int32_t attributes) {
  const ArtRef art = findArt(host, handle);
  if (!art || which != kArtSelected) return kBadParameterErr;
  if ((attributes & kArtSelected) == 0) {
    art.document->setSelected(art.id, false);
    return kNoErr;
  }
  return selectEditable(*art.document, art.id) ? kNoErr : kLayerLockedErr;
}

AIErr getArtName(Host& host, AIArtHandle handle, AIUnicodeStringHandle name) {
  const ArtRef art = findArt(host, handle);
  return art ? writeString(host, name, art->name) : kBadParameterErr;
}

AIErr setArtName(Host& host, AIArtHandle handle, AIUnicodeStringHandle name) {
  const ArtRef art = findArt(host, handle);
  const HostString* text = findString(host, name);
  if (!art || text == nullptr) return kBadParameterErr;
  if (art->name != text->text()) art.document->setName(art.id, text->text());
  return kNoErr;
}

AIErr getArtTransformBounds(Host& host, AIArtHandle handle, const AIRealMatrix* matrix, std::int32_t flags,
                            AIRealRect* bounds) {
  const ArtRef art = findArt(host, handle);
  if (!art || bounds == nullptr) return kBadParameterErr;
  *bounds = artBounds(*art.document, art.id, matrix, flags);
  return kNoErr;
}

}  // namespace

SuiteOffer artSuite() {
  SuiteEntries entries(kAIArtSuite);
  static const AIArtSuite table{
      entries.add<newArt>("NewArt"),
      entries.add<disposeArt>("DisposeArt"),
      entries.add<reorderArt>("ReorderArt"),
      entries.add<duplicate>("DuplicateArt"),
      entries.add<getFirstArtOfLayer>("GetFirstArtOfLayer"),
      entries.add<getNeighbour<&Art::firstChild>>("GetArtFirstChild"),
      entries.add<getNeighbour<&Art::below>>("GetArtSibling"),
      entries.add<getNeighbour<&Art::parent>>("GetArtParent"),
      entries.add<getArtType>("GetArtType"),
      entries.add<getLayerOfArt>("GetLayerOfArt"),
      entries.add<getArtUserAttr>("GetArtUserAttr"),
      entries.add<setArtUserAttr>("SetArtUserAttr"),
      entries.add<getArtName>("GetArtName"),
      entries.add<setArtName>("SetArtName"),
      entries.add<getArtTransformBounds>("GetArtTransformBounds"),
  };
  return entries.offer(kAIArtSuiteVersion, &table);
}

}  // namespace host

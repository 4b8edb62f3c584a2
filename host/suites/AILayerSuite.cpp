#include "AILayer.h"

#include <algorithm>

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"

namespace host {
namespace {

// What a call about a layer works on, or why it can't.
struct Subject {
  LayerRef layer;
  AIErr error = kNoErr;
};

Subject subjectOf(Host& host, AILayerHandle handle) {
  if (host.currentDocument() == nullptr) return {{}, kNoDocumentErr};
  const LayerRef layer = findLayer(host, handle);
  return {layer, layer ? kNoErr : kBadParameterErr};
}

// The layer at an index from the top; null beyond the last.
AILayerHandle layerAt(const Document& document, std::size_t index) {
  const auto& layers = document.state().layers;
  return index < layers.size() ? layerHandle(document, layers[index]) : nullptr;
}

AIErr countLayers(Host& host, std::int32_t* count) {
  const Document* document = host.currentDocument();
  if (document == nullptr) return kNoDocumentErr;
  if (count == nullptr) return kBadParameterErr;
  *count = static_cast<std::int32_t>(document->state().layers.size());
  return kNoErr;
}

AIErr getNthLayer(Host& host, std::int32_t index, AILayerHandle* layer) {
  const Document* document = host.currentDocument();
  if (document == nullptr) return kNoDocumentErr;
  if (layer == nullptr) return kBadParameterErr;
  const AILayerHandle found = index < 0 ? nullptr : layerAt(*document, static_cast<std::size_t>(index));
  if (found == nullptr) return kNoSuchItemErr;
  *layer = found;
  return kNoErr;
}

AIErr getFirstLayer(Host& host, AILayerHandle* layer) {
  return getNthLayer(host, 0, layer);
}

AIErr getNextLayer(Host& host, AILayerHandle previous, AILayerHandle* layer) {
  const Subject subject = subjectOf(host, previous);
  if (subject.error != kNoErr) return subject.error;
  if (layer == nullptr) return kBadParameterErr;
  const Document& document = *subject.layer.document;
  const auto& layers = document.state().layers;
  const auto position = std::find(layers.begin(), layers.end(), subject.layer.id) - layers.begin();
  *layer = layerAt(document, static_cast<std::size_t>(position) + 1);
  return kNoErr;
}

AIErr getLayerByTitle(Host& host, AIUnicodeStringHandle title, AILayerHandle* layer) {
  const Document* document = host.currentDocument();
  if (document == nullptr) return kNoDocumentErr;
  const HostString* text = findString(host, title);
  if (text == nullptr || layer == nullptr) return kBadParameterErr;
  const auto& layers = document->state().layers;
  const auto found = std::find_if(layers.begin(), layers.end(),
                                  [&](LayerId id) { return document->layer(id)->title == text->text(); });
  *layer = found == layers.end() ? nullptr : layerHandle(*document, *found);
  return kNoErr;
}

AIErr insertLayer(Host& host, AILayerHandle reference, AIPaintOrder order, AILayerHandle* layer) {
  Document* document = host.currentDocument();
  if (document == nullptr) return kNoDocumentErr;
  const bool beside = order == kPlaceAbove || order == kPlaceBelow;
  const bool extreme = order == kPlaceAboveAll || order == kPlaceBelowAll;
  if (layer == nullptr || (!beside && !extreme) || extreme != (reference == nullptr)) return kBadParameterErr;
  LayerId neighbour = 0;
  if (beside) {
    const LayerRef found = findLayer(host, reference);
    if (!found) return kBadParameterErr;
    document = found.document;
    neighbour = found.id;
  }
  *layer = layerHandle(*document, document->insertLayer(neighbour, order));
  return kNoErr;
}

AIErr deleteLayer(Host& host, AILayerHandle handle) {
  const Subject subject = subjectOf(host, handle);
  if (subject.error != kNoErr) return subject.error;
  Document& document = *subject.layer.document;
  if (document.state().layers.size() == 1) return kBadParameterErr;
  document.deleteLayer(subject.layer.id);
  return kNoErr;
}

AIErr getLayerTitle(Host& host, AILayerHandle handle, AIUnicodeStringHandle title) {
  const Subject subject = subjectOf(host, handle);
  return subject.error != kNoErr ? subject.error : writeString(host, title, subject.layer->title);
}

AIErr setLayerTitle(Host& host, AILayerHandle handle, AIUnicodeStringHandle title) {
  const Subject subject = subjectOf(host, handle);
  if (subject.error != kNoErr) return subject.error;
  const HostString* text = findString(host, title);
  if (text == nullptr) return kBadParameterErr;
  if (subject.layer->title == text->text()) return kNoErr;
  subject.layer.document->editLayer(subject.layer.id).title = text->text();
  return kNoErr;
}

// Getters and setters of a layer's own switches.
template <bool Layer::*Flag>
AIErr getFlag(Host& host, AILayerHandle handle, AIBoolean* value) {
  const Subject subject = subjectOf(host, handle);
  if (subject.error != kNoErr) return subject.error;
  if (value == nullptr) return kBadParameterErr;
  *value = subject.layer.record->*Flag ? 1 : 0;
  return kNoErr;
}

template <bool Layer::*Flag>
AIErr setFlag(Host& host, AILayerHandle handle, AIBoolean value) {
  const Subject subject = subjectOf(host, handle);
  if (subject.error != kNoErr) return subject.error;
  if (subject.layer.record->*Flag == (value != 0)) return kNoErr;
  subject.layer.document->editLayer(subject.layer.id).*Flag = value != 0;
  return kNoErr;
}

bool isSelected(const LayerRef& layer) {
  return layer.document->state().currentLayer == layer.id;
}

bool hasArt(const LayerRef& layer) {
  return layer.document->art(layer->root)->firstChild != 0;
}

bool hasSelectedArt(const LayerRef& layer) {
  return layer.document->holdsSelected(layer->root);
}

// Getters of what follows from the document.
template <bool (*Answer)(const LayerRef&)>
AIErr getAnswer(Host& host, AILayerHandle handle, AIBoolean* value) {
  const Subject subject = subjectOf(host, handle);
  if (subject.error != kNoErr) return subject.error;
  if (value == nullptr) return kBadParameterErr;
  *value = Answer(subject.layer) ? 1 : 0;
  return kNoErr;
}

}  // namespace

SuiteOffer layerSuite() {
  SuiteEntries entries(kAILayerSuite);
  static const AILayerSuite table{
      entries.add<countLayers>("CountLayers"),
      entries.add<getNthLayer>("GetNthLayer"),
      entries.add<getFirstLayer>("GetFirstLayer"),
      entries.add<getNextLayer>("GetNextLayer"),
      entries.add<getLayerByTitle>("GetLayerByTitle"),
      entries.add<insertLayer>("InsertLayer"),
      entries.add<deleteLayer>("DeleteLayer"),
      entries.add<getLayerTitle>("GetLayerTitle"),
      entries.add<setLayerTitle>("SetLayerTitle"),
      entries.add<getFlag<&Layer::visible>>("GetLayerVisible"),
      entries.add<setFlag<&Layer::visible>>("SetLayerVisible"),
      entries.add<getFlag<&Layer::preview>>("GetLayerPreview"),
      entries.add<getFlag<&Layer::editable>>("GetLayerEditable"),
      entries.add<setFlag<&Layer::editable>>("SetLayerEditable"),
      entries.add<getFlag<&Layer::printed>>("GetLayerPrinted"),
      entries.add<getAnswer<isSelected>>("GetLayerSelected"),
      entries.add<getAnswer<hasArt>>("LayerHasArt"),
      entries.add<getAnswer<hasSelectedArt>>("LayerHasSelectedArt"),
      entries.add<getFlag<&Layer::isTemplate>>("GetLayerIsTemplate"),
      entries.add<getFlag<&Layer::dimsPlacedImages>>("GetLayerDimPlacedImages"),
  };
  return entries.offer(kAILayerSuiteVersion, &table);
}

}  // namespace host

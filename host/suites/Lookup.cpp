#include "Lookup.h"

#include <cmath>
#include <initializer_list>

namespace host {
namespace {

// `find` is the Document's operation that finds a record by its id.
template <typename Record, typename Handle>
Ref<Record> findRecord(Host& host, Handle handle, HandleKind kind,
                       const Record* (Document::*find)(ObjectId) const) {
  Document* current = host.currentDocument();
  if (handle == nullptr || current == nullptr) return {};
  if (const ObjectId id = idOfHandle(handle, kind, current->serial())) {
    return {current, id, (current->*find)(id)};
  }
  for (const auto& open : host.documents().all()) {
    Document* document = open->document.get();
    if (const ObjectId id = idOfHandle(handle, kind, document->serial())) {
      return {document, id, (document->*find)(id)};
    }
  }
  return {};
}

bool allFinite(std::initializer_list<AIReal> numbers) {
  for (const AIReal number : numbers) {
    if (!std::isfinite(number)) return false;
  }
  return true;
}

}  // namespace

ArtRef findArt(Host& host, AIArtHandle handle) {
  return findRecord(host, handle, HandleKind::Art, &Document::art);
}

LayerRef findLayer(Host& host, AILayerHandle handle) {
  return findRecord(host, handle, HandleKind::Layer, &Document::layer);
}

Ref<Swatch> findSwatch(Host& host, AISwatchRef handle) {
  return findRecord(host, handle, HandleKind::Swatch, &Document::swatch);
}

Ref<SwatchGroup> findSwatchGroup(Host& host, AISwatchGroupRef handle) {
  return findRecord(host, handle, HandleKind::SwatchGroup, &Document::swatchGroup);
}

Ref<CustomColor> findCustomColor(Host& host, AICustomColorHandle handle) {
  return findRecord(host, handle, HandleKind::CustomColor, &Document::customColor);
}

OpenDocument* findView(Host& host, AIDocumentViewHandle handle) {
  return handle == nullptr ? host.documents().current() : host.documents().find(handle);
}

AIArtHandle artHandle(const Document& document, ArtId id) {
  return makeHandle<AIArtHandle>(HandleKind::Art, document.serial(), id);
}

AILayerHandle layerHandle(const Document& document, LayerId id) {
  return makeHandle<AILayerHandle>(HandleKind::Layer, document.serial(), id);
}

HostString* findString(Host& host, AIUnicodeStringHandle handle) {
  return host.objects().strings.find(handle);
}

AIErr writeString(Host& host, AIUnicodeStringHandle handle, const std::string& text) {
  HostString* string = findString(host, handle);
  if (string == nullptr) return kBadParameterErr;
  string->assign(text);
  return kNoErr;
}

bool isColorOf(const Document& document, const AIColor& color) {
  const auto serial = document.serial();
  switch (color.kind) {
    case kGrayColor:
      return std::isfinite(color.c.g.gray);
    case kFourColor:
      return allFinite({color.c.f.cyan, color.c.f.magenta, color.c.f.yellow, color.c.f.black});
    case kThreeColor:
      return allFinite({color.c.rgb.red, color.c.rgb.green, color.c.rgb.blue});
    case kCustomColor:
      return std::isfinite(color.c.c.tint) &&
             document.customColor(idOfHandle(color.c.c.color, HandleKind::CustomColor, serial)) != nullptr;
    case kPattern:
    case kGradient:
      return document.paintServer(idOfHandle(color.c.s.server, HandleKind::PaintServer, serial)) != nullptr;
    case kNoneColor:
      return true;
  }
  return false;
}

}  // namespace host

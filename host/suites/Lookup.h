// From the handles that a plug-in passes in to what they stand for.
#pragma once

#include <string>

#include "Host.h"
#include "HostObjects.h"

namespace host {

// A record of an open document. False if the handle was null, stale or foreign. `record` ends with the
// next change of the document.
template <typename Record>
struct Ref {
  Document* document = nullptr;
  ObjectId id = 0;
  const Record* record = nullptr;

  explicit operator bool() const { return record != nullptr; }
  const Record* operator->() const { return record; }
};

using ArtRef = Ref<Art>;
using LayerRef = Ref<Layer>;

// Art and layers may be of any open document, not only the current one.
ArtRef findArt(Host& host, AIArtHandle handle);
LayerRef findLayer(Host& host, AILayerHandle handle);
Ref<Swatch> findSwatch(Host& host, AISwatchRef handle);
Ref<SwatchGroup> findSwatchGroup(Host& host, AISwatchGroupRef handle);
Ref<CustomColor> findCustomColor(Host& host, AICustomColorHandle handle);
// A null handle is the view of the current document. Null if there is none.
OpenDocument* findView(Host& host, AIDocumentViewHandle handle);

AIArtHandle artHandle(const Document& document, ArtId id);  // null for 0
AILayerHandle layerHandle(const Document& document, LayerId id);

HostString* findString(Host& host, AIUnicodeStringHandle handle);
// kBadParameterErr if there is no such string.
AIErr writeString(Host& host, AIUnicodeStringHandle handle, const std::string& text);

// The paint of a style or a swatch can be kept by this document: its numbers are finite, its tag is known
// and what it refers to is the document's own.
bool isColorOf(const Document& document, const AIColor& color);

}  // namespace host

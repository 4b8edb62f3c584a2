// Copies of art and layers.
#pragma once

#include <optional>

#include "Document.h"

namespace host {

// A copy of `id` and all it holds, placed as by Document::newArt. What is selected has a selected copy.
// Nullopt if `reference` can't hold it, or lies within `id`.
std::optional<ArtId> duplicateArt(Document& document, ArtId id, AIPaintOrder order, ArtId reference);

// A copy of a layer with its title, its state and its art, placed as by Document::insertLayer; it becomes the
// current one.
LayerId duplicateLayer(Document& document, LayerId id, AIPaintOrder order, LayerId reference);

}  // namespace host

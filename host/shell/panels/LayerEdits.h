// What the user does to layers.
#pragma once

#include <cstddef>
#include <string>

#include "DocumentState.h"

namespace host {

class Document;

// What is hidden or locked is selected no more.
void setLayerVisible(Document& document, LayerId id, bool isVisible);
void setLayerLocked(Document& document, LayerId id, bool isLocked);

bool isOnlyVisibleLayer(const Document& document, LayerId id);
// Shows this one and hides all others.
void showOnlyLayer(Document& document, LayerId id);
void showAllLayers(Document& document);

void renameLayer(Document& document, LayerId id, std::string title);
// To a place among the other layers, from the top.
void moveLayer(Document& document, LayerId id, std::size_t place);
// Above the current one, with a title of its own; becomes the current one.
void addLayer(Document& document);

// Selects what can be edited on the layer, and nothing else.
void selectArtOfLayer(Document& document, LayerId id);

}  // namespace host

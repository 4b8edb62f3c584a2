#include "LayerEdits.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "Document.h"
#include "SelectionCommands.h"

namespace host {
namespace {

bool hasTitle(const Document& document, const std::string& title) {
  const std::vector<LayerId>& layers = document.state().layers;
  return std::any_of(layers.begin(), layers.end(),
                     [&](LayerId id) { return document.layer(id)->title == title; });
}

std::string freshTitle(const Document& document) {
  std::size_t number = document.state().layers.size() + 1;
  while (hasTitle(document, "Layer " + std::to_string(number))) ++number;
  return "Layer " + std::to_string(number);
}

void deselectLayer(Document& document, LayerId id) {
  document.setSelected(document.layer(id)->root, false);
}

}  // namespace

void setLayerVisible(Document& document, LayerId id, bool isVisible) {
  if (document.layer(id)->visible == isVisible) return;
  document.editLayer(id).visible = isVisible;
  if (!isVisible) deselectLayer(document, id);
}

void setLayerLocked(Document& document, LayerId id, bool isLocked) {
  if (document.layer(id)->editable != isLocked) return;
  document.editLayer(id).editable = !isLocked;
  if (isLocked) deselectLayer(document, id);
}

bool isOnlyVisibleLayer(const Document& document, LayerId id) {
  const std::vector<LayerId>& layers = document.state().layers;
  return std::all_of(layers.begin(), layers.end(),
                     [&](LayerId other) { return document.layer(other)->visible == (other == id); });
}

void showOnlyLayer(Document& document, LayerId id) {
  const std::vector<LayerId> layers = document.state().layers;
  for (const LayerId other : layers) setLayerVisible(document, other, other == id);
}

void showAllLayers(Document& document) {
  const std::vector<LayerId> layers = document.state().layers;
  for (const LayerId id : layers) setLayerVisible(document, id, true);
}

void renameLayer(Document& document, LayerId id, std::string title) {
  document.editLayer(id).title = std::move(title);
}

void moveLayer(Document& document, LayerId id, std::size_t place) {
  std::vector<LayerId>& layers = document.editState().layers;
  layers.erase(std::remove(layers.begin(), layers.end(), id), layers.end());
  layers.insert(layers.begin() + static_cast<std::ptrdiff_t>(std::min(place, layers.size())), id);
}

void addLayer(Document& document) {
  std::string title = freshTitle(document);
  const LayerId current = document.state().currentLayer;
  const LayerId fresh = document.insertLayer(current, current == 0 ? kPlaceAboveAll : kPlaceAbove);
  document.editLayer(fresh).title = std::move(title);
}

void selectArtOfLayer(Document& document, LayerId id) {
  selectOnly(document, selectableArt(document, document.layer(id)->root));
}

}  // namespace host

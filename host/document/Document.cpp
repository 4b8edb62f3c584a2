#include "Document.h"

#include <algorithm>
#include <utility>

namespace host {
namespace {

std::uint32_t nextSerial() {
  static std::uint32_t last = 0;
  return ++last;
}

std::shared_ptr<const PathGeometry> emptyPath() {
  static const auto path = std::make_shared<const PathGeometry>();
  return path;
}

std::shared_ptr<const AIPathStyle> unpainted() {
  static const auto style = [] {
    AIPathStyle none{};
    none.fill.color.kind = kNoneColor;
    none.stroke.color.kind = kNoneColor;
    none.stroke.miterLimit = 4;
    return std::make_shared<const AIPathStyle>(none);
  }();
  return style;
}

bool canHold(AIArtType container, AIArtType content) {
  if (container == kGroupArt) return true;
  return container == kCompoundPathArt && content == kPathArt;
}

// What is said of a compound path holds for all of its paths.
void becomePart(Art& path) {
  path.style = nullptr;
  path.clip = nullptr;
  path.hidden = false;
  path.locked = false;
}

// Where in the list of its siblings or of the layers something goes.
struct Place {
  ArtId parent;
  ArtId above;  // the sibling above; 0: on top
};

}  // namespace

Document::Document() : serial_(nextSerial()) {
  state_.add(DocumentState{});
}

Document::~Document() = default;

const PaintServer* Document::paintServer(ObjectId id) const {
  return id == 0 || id > paintServers_.size() ? nullptr : &paintServers_[id - 1];
}

LayerId Document::layerOfArt(ArtId id) const {
  const Art* current = art(id);
  while (current != nullptr && current->parent != 0) current = art(current->parent);
  return current == nullptr ? 0 : current->rootOf;
}

bool Document::isEditable(ArtId id) const {
  const Art* current = art(id);
  while (current != nullptr) {
    if (current->hidden || current->locked) return false;
    if (current->parent == 0) {
      const Layer* holder = layer(current->rootOf);
      return holder != nullptr && holder->visible && holder->editable;
    }
    current = art(current->parent);
  }
  return false;
}

bool Document::isWithin(ArtId id, ArtId ancestor) const {
  for (; id != 0; id = art_[id].parent) {
    if (id == ancestor) return true;
  }
  return false;
}

const AIPathStyle* Document::styleOf(ArtId id) const {
  const Art* object = art(id);
  if (object == nullptr) return nullptr;
  if (object->type == kPathArt) {
    const Art* parent = art(object->parent);
    if (parent != nullptr && parent->type == kCompoundPathArt) return parent->style.get();
  }
  const bool painted = object->type == kPathArt || object->type == kCompoundPathArt;
  return painted ? object->style.get() : nullptr;
}

CustomColorId Document::customColorByName(std::string_view name) const {
  for (CustomColorId id = 1; id <= customColors_.size(); ++id) {
    const CustomColor* color = customColors_.find(id);
    if (color != nullptr && color->name == name) return id;
  }
  return 0;
}

void Document::link(ArtId id, ArtId parent, ArtId above) {
  const ArtId below = above == 0 ? art_[parent].firstChild : art_[above].below;
  Art& object = art_.edit(id);
  object.parent = parent;
  object.above = above;
  object.below = below;
  if (above == 0) {
    art_.edit(parent).firstChild = id;
  } else {
    art_.edit(above).below = id;
  }
  if (below == 0) {
    art_.edit(parent).lastChild = id;
  } else {
    art_.edit(below).above = id;
  }
}

void Document::unlink(ArtId id) {
  const Art object = art_[id];
  if (object.parent == 0) return;
  if (object.above == 0) {
    art_.edit(object.parent).firstChild = object.below;
  } else {
    art_.edit(object.above).below = object.below;
  }
  if (object.below == 0) {
    art_.edit(object.parent).lastChild = object.above;
  } else {
    art_.edit(object.below).above = object.above;
  }
  Art& loose = art_.edit(id);
  loose.parent = loose.above = loose.below = 0;
}

namespace {

// Nullopt if art of this type can't lie there.
std::optional<Place> placeFor(const Document& document, AIArtType type, AIPaintOrder order, ArtId reference) {
  if (order == kPlaceAboveAll || order == kPlaceBelowAll) {
    const Layer* layer = document.layer(document.state().currentLayer);
    if (reference != 0 || layer == nullptr) return std::nullopt;
    reference = layer->root;
    order = order == kPlaceAboveAll ? kPlaceInsideOnTop : kPlaceInsideOnBottom;
  }
  const Art* base = document.art(reference);
  if (base == nullptr) return std::nullopt;
  const bool inside = order == kPlaceInsideOnTop || order == kPlaceInsideOnBottom;
  const bool beside = order == kPlaceAbove || order == kPlaceBelow;
  const Art* container = inside ? base : document.art(base->parent);
  if ((!inside && !beside) || container == nullptr || !canHold(container->type, type)) return std::nullopt;
  if (inside) return Place{reference, order == kPlaceInsideOnTop ? 0 : base->lastChild};
  return Place{base->parent, order == kPlaceAbove ? base->above : reference};
}

}  // namespace

std::optional<ArtId> Document::newArt(AIArtType type, AIPaintOrder order, ArtId reference) {
  const std::optional<Place> place = placeFor(*this, type, order, reference);
  if (!place) return std::nullopt;
  touch();
  Art fresh;
  fresh.type = type;
  if (type == kPathArt) fresh.path = emptyPath();
  const bool inCompound = art_[place->parent].type == kCompoundPathArt;
  if (type == kCompoundPathArt || (type == kPathArt && !inCompound)) fresh.style = unpainted();
  const ArtId id = art_.add(std::move(fresh));
  link(id, place->parent, place->above);
  return id;
}

bool Document::moveArt(ArtId id, AIPaintOrder order, ArtId reference) {
  const Art* object = art(id);
  if (object == nullptr || object->parent == 0) return false;
  std::optional<Place> place = placeFor(*this, object->type, order, reference);
  if (!place || isWithin(place->parent, id)) return false;
  if (place->above == id) place->above = object->above;
  if (place->parent == object->parent && place->above == object->above) return true;
  touch();
  const bool leavesCompound =
      art_[object->parent].type == kCompoundPathArt && art_[place->parent].type != kCompoundPathArt;
  if (leavesCompound) art_.edit(id).style = art_[art_[id].parent].style;
  if (art_[place->parent].type == kCompoundPathArt) {
    becomePart(art_.edit(id));
    selection_.remove(id);
  }
  unlink(id);
  link(id, place->parent, place->above);
  return true;
}

void Document::killSubtree(ArtId id) {
  std::vector<ArtId> open{id};
  while (!open.empty()) {
    const ArtId current = open.back();
    open.pop_back();
    art_.edit(current).alive = false;
    selection_.remove(current);
    for (ArtId child = art_[current].firstChild; child != 0; child = art_[child].below) open.push_back(child);
  }
}

void Document::deleteArt(ArtId id) {
  if (art(id) == nullptr || art_[id].parent == 0) return;
  touch();
  unlink(id);
  killSubtree(id);
}

void Document::setPath(ArtId id, std::shared_ptr<const PathGeometry> path) {
  touch();
  art_.edit(id).path = std::move(path);
}

void Document::setStyle(ArtId id, std::shared_ptr<const AIPathStyle> style) {
  touch();
  const Art* parent = art(art_[id].parent);
  const bool inCompound = art_[id].type == kPathArt && parent != nullptr && parent->type == kCompoundPathArt;
  art_.edit(inCompound ? art_[id].parent : id).style = std::move(style);
}

void Document::setName(ArtId id, std::string name) {
  touch();
  art_.edit(id).name = std::move(name);
}

void Document::initialiseArt(ArtId id, const Art& content) {
  touch();
  const Art place = art_[id];
  const bool isPart = place.parent != 0 && art_[place.parent].type == kCompoundPathArt;
  Art& object = art_.edit(id);
  object = content;
  if (isPart) becomePart(object);
  object.parent = place.parent;
  object.above = place.above;
  object.below = place.below;
  object.firstChild = place.firstChild;
  object.lastChild = place.lastChild;
  object.rootOf = place.rootOf;
}

LayerId Document::insertLayer(LayerId reference, AIPaintOrder order) {
  const std::vector<LayerId>& layers = state().layers;
  auto position = layers.begin();
  if (order == kPlaceBelowAll) {
    position = layers.end();
  } else if (order != kPlaceAboveAll) {
    position = std::find(layers.begin(), layers.end(), reference);
    if (position != layers.end() && order == kPlaceBelow) ++position;
  }
  const auto offset = position - layers.begin();
  touch();
  Art root;
  root.type = kGroupArt;
  const ArtId rootId = art_.add(std::move(root));
  Layer layer;
  layer.root = rootId;
  const LayerId id = layers_.add(std::move(layer));
  art_.edit(rootId).rootOf = id;
  DocumentState& changed = state_.edit(1);
  changed.layers.insert(changed.layers.begin() + offset, id);
  changed.currentLayer = id;
  return id;
}

void Document::deleteLayer(LayerId id) {
  const Layer* layer = layers_.find(id);
  if (layer == nullptr) return;
  touch();
  killSubtree(layer->root);
  layers_.edit(id).alive = false;
  DocumentState& changed = state_.edit(1);
  changed.layers.erase(std::remove(changed.layers.begin(), changed.layers.end(), id), changed.layers.end());
  if (changed.currentLayer == id) changed.currentLayer = changed.layers.empty() ? 0 : changed.layers.front();
}

Layer& Document::editLayer(LayerId id) {
  touch();
  return layers_.edit(id);
}

DocumentState& Document::editState() {
  touch();
  return state_.edit(1);
}

CustomColorId Document::addCustomColor(std::string name, const AICustomColor& definition) {
  CustomColor color;
  color.name = std::move(name);
  color.definition = definition;
  return customColors_.add(std::move(color));
}

SwatchGroupId Document::addSwatchGroup(std::int32_t position) {
  const SwatchGroupId id = swatchGroups_.add(SwatchGroup{});
  std::vector<SwatchGroupId>& groups = state_.edit(1).swatchGroups;
  const bool atEnd = position < 0 || static_cast<std::size_t>(position) >= groups.size();
  groups.insert(atEnd ? groups.end() : groups.begin() + position, id);
  return id;
}

SwatchId Document::addSwatch(SwatchGroupId group, const AIColor& color, std::string name) {
  Swatch swatch;
  swatch.name = std::move(name);
  swatch.color = color;
  swatch.group = group;
  const SwatchId id = swatches_.add(std::move(swatch));
  state_.edit(1).swatches.push_back(id);
  return id;
}

ObjectId Document::addPaintServer(PaintServer server) {
  paintServers_.push_back(std::move(server));
  return static_cast<ObjectId>(paintServers_.size());
}

}  // namespace host

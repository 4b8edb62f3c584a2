#include "SvgChanges.h"

#include <algorithm>
#include <unordered_map>

namespace host {
namespace {

bool same(AIRealPoint a, AIRealPoint b) {
  return a.x == b.x && a.y == b.y;
}

bool same(const PathGeometry& a, const PathGeometry& b) {
  return a.closed == b.closed &&
         std::equal(a.segments.begin(), a.segments.end(), b.segments.begin(), b.segments.end(),
                    [](const AIPathSegment& p, const AIPathSegment& q) {
                      return same(p.p, q.p) && same(p.in, q.in) && same(p.out, q.out);
                    });
}

// Marks a longest rising part of `positions`; kNowhere never belongs to it.
constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

std::vector<bool> longestRise(const std::vector<std::size_t>& positions) {
  std::vector<std::size_t> ends;  // ends[n]: index of the least end of a rise of n + 1 entries
  std::vector<std::size_t> before(positions.size(), kNowhere);
  for (std::size_t i = 0; i < positions.size(); ++i) {
    if (positions[i] == kNowhere) continue;
    const auto place = std::partition_point(ends.begin(), ends.end(),
                                            [&](std::size_t end) { return positions[end] < positions[i]; });
    if (place != ends.begin()) before[i] = *(place - 1);
    if (place == ends.end()) {
      ends.push_back(i);
    } else {
      *place = i;
    }
  }
  std::vector<bool> marked(positions.size(), false);
  for (std::size_t i = ends.empty() ? kNowhere : ends.back(); i != kNowhere; i = before[i]) marked[i] = true;
  return marked;
}

}  // namespace

std::vector<bool> entriesInPlace(const std::vector<ObjectId>& now, const std::vector<ObjectId>& before) {
  if (now == before) return std::vector<bool>(now.size(), true);
  std::unordered_map<ObjectId, std::size_t> positionBefore;
  for (std::size_t i = 0; i < before.size(); ++i) positionBefore.emplace(before[i], i);
  std::vector<std::size_t> positions;
  positions.reserve(now.size());
  for (const ObjectId id : now) {
    const auto found = positionBefore.find(id);
    positions.push_back(found == positionBefore.end() ? kNowhere : found->second);
  }
  return longestRise(positions);
}

void SvgChanges::Heirs::add(ObjectId original, ObjectId heir) {
  if (heirs.emplace(original, heir).second) originals.emplace(heir, original);
}

ObjectId SvgChanges::Heirs::heirOf(ObjectId id) const {
  const auto found = heirs.find(id);
  return found == heirs.end() ? id : found->second;
}

ObjectId SvgChanges::Heirs::originalOf(ObjectId id) const {
  const auto found = originals.find(id);
  return found == originals.end() ? id : found->second;
}

SvgChanges::SvgChanges(const SvgDrawing& drawing) : drawing_(drawing), document_(*drawing.document) {
  const auto artRead = static_cast<ArtId>(drawing.originalArt.size());
  for (ArtId id = artRead + 1; id <= document_.artSlots(); ++id) {
    const Art* const copy = document_.art(id);
    const bool inherits =
        copy && copy->copyOf != 0 && copy->copyOf <= artRead && !document_.art(copy->copyOf);
    if (inherits) art_.add(copy->copyOf, id);
  }
  const auto layersRead = static_cast<LayerId>(drawing.originalLayers.size());
  for (LayerId id = layersRead + 1; id <= document_.layerSlots(); ++id) {
    const Layer* const copy = document_.layer(id);
    const bool inherits =
        copy && copy->copyOf != 0 && copy->copyOf <= layersRead && !document_.layer(copy->copyOf);
    if (inherits) layers_.add(copy->copyOf, id);
  }
}

const Art* SvgChanges::original(ArtId id) const {
  id = art_.originalOf(id);
  if (id == 0 || id > drawing_.originalArt.size()) return nullptr;
  const Art& art = drawing_.originalArt[id - 1];
  return art.alive ? &art : nullptr;
}

const Art* SvgChanges::model(ArtId id) const {
  const Art* const read = original(id);
  const Art* const art = document_.art(id);
  return read || !art ? read : original(art->copyOf);
}

const Layer* SvgChanges::originalLayer(LayerId id) const {
  id = layers_.originalOf(id);
  if (id == 0 || id > drawing_.originalLayers.size()) return nullptr;
  const Layer& layer = drawing_.originalLayers[id - 1];
  return layer.alive ? &layer : nullptr;
}

const Layer* SvgChanges::modelLayer(LayerId id) const {
  const Layer* const read = originalLayer(id);
  const Layer* const layer = document_.layer(id);
  return read || !layer ? read : originalLayer(layer->copyOf);
}

std::vector<LayerId> SvgChanges::originalLayers() const {
  std::vector<LayerId> layers = drawing_.originalState.layers;
  for (LayerId& id : layers) id = layers_.heirOf(id);
  return layers;
}

NodeIndex SvgChanges::originalElementOf(ArtId id) const {
  const Art* const art = original(id);
  const Art* const parent = art ? original(art->parent) : nullptr;
  return parent && parent->type != kCompoundPathArt ? art->source : 0;
}

NodeIndex SvgChanges::elementOf(ArtId id) const {
  const Art* const art = document_.art(id);
  const Art* const parent = art ? document_.art(art->parent) : nullptr;
  return parent && parent->type != kCompoundPathArt ? originalElementOf(id) : 0;
}

std::vector<ArtId> SvgChanges::originalChildren(ArtId id) const {
  std::vector<ArtId> list;
  const Art* const art = original(id);
  for (ArtId at = art ? art->lastChild : 0; at != 0; at = original(at)->above) {
    list.push_back(heirOf(at));
  }
  return list;
}

std::vector<ArtId> SvgChanges::children(ArtId id) const {
  std::vector<ArtId> list;
  const Art* const art = document_.art(id);
  for (ArtId at = art ? art->lastChild : 0; at != 0; at = document_.art(at)->above) list.push_back(at);
  return list;
}

bool SvgChanges::isReshaped(ArtId id) const {
  const Art* const before = model(id);
  const Art* const now = document_.art(id);
  if (!before || !now) return true;
  if (now->type == kPathArt) return now->path != before->path && !same(*now->path, *before->path);
  const std::vector<ArtId> paths = children(id);
  if (paths != originalChildren(id)) return true;
  return std::any_of(paths.begin(), paths.end(), [this](ArtId path) { return isReshaped(path); });
}

}  // namespace host

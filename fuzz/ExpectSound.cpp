#include "ExpectSound.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "Expect.h"

namespace {

using namespace host;

constexpr double kLargest = 1e12;  // document units

bool IsUsable(double number) {
  return std::abs(number) <= kLargest;
}

void ExpectDrawable(const PathGeometry& path) {
  for (const AIPathSegment& segment : path.segments) {
    for (const AIRealPoint& point : {segment.p, segment.in, segment.out})
      Expect(IsUsable(point.x) && IsUsable(point.y), "a point lies somewhere");
  }
}

void ExpectDrawable(const AIPathStyle& style) {
  const AIStrokeStyle& stroke = style.stroke;
  Expect(IsUsable(stroke.width) && stroke.width >= 0, "a stroke has a width");
  Expect(std::isfinite(stroke.miterLimit) && stroke.miterLimit >= 1, "a miter has its limit");
  Expect(stroke.dash.length >= 0 && stroke.dash.length <= kMaxDashComponents, "dashes have their room");
  Expect(std::isfinite(stroke.dash.offset), "dashes begin somewhere");
  for (int i = 0; i < stroke.dash.length; ++i)
    Expect(std::isfinite(stroke.dash.array[i]) && stroke.dash.array[i] >= 0, "a dash has a length");
}

void ExpectDrawable(const Art& art) {
  Expect((art.type == kPathArt) == (art.path != nullptr), "a path has its outline, and nothing else has");
  if (art.path) ExpectDrawable(*art.path);
  if (art.style) ExpectDrawable(*art.style);
  if (!art.body) return;
  for (const Body::Part& part : art.body->parts) {
    for (const PathGeometry& path : part.paths) ExpectDrawable(path);
    ExpectDrawable(part.style);
  }
}

void ExpectKind(const Document& document, ArtId id) {
  const Art& art = *document.art(id);
  const bool isPart = art.parent != 0 && document.art(art.parent)->type == kCompoundPathArt;
  Expect(!isPart || art.type == kPathArt, "a compound path holds paths");
  const bool isPainted = (art.type == kPathArt && !isPart) || art.type == kCompoundPathArt;
  Expect(isPainted == (art.style != nullptr), "what is painted as a whole has its style");
  Expect(art.firstChild == 0 || art.type == kGroupArt || art.type == kCompoundPathArt,
         "a leaf holds nothing");
}

// Gives how many art there are.
std::size_t CountTree(const Document& document, ArtId root) {
  std::size_t count = 0;
  std::vector<ArtId> open{root};
  while (!open.empty()) {
    const ArtId id = open.back();
    open.pop_back();
    ++count;
    const Art* const art = document.art(id);
    Expect(art != nullptr, "what hangs in the tree is there");
    ArtId above = 0;
    for (ArtId child = art->firstChild; child != 0; child = document.art(child)->below) {
      const Art* const record = document.art(child);
      Expect(record != nullptr && record->parent == id && record->above == above,
             "neighbours know each other");
      above = child;
      open.push_back(child);
    }
    Expect(art->lastChild == above, "the last one is the last");
  }
  return count;
}

}  // namespace

void ExpectSound(const Document& document) {
  const DocumentState& state = document.state();
  std::size_t inTree = 0;
  Expect(!state.layers.empty(), "a drawing has a layer");
  for (const LayerId id : state.layers) {
    const Layer* const layer = document.layer(id);
    Expect(layer != nullptr && document.art(layer->root) != nullptr, "a layer has its art");
    Expect(document.art(layer->root)->rootOf == id, "a layer's art knows its layer");
    inTree += CountTree(document, layer->root);
  }
  std::size_t alive = 0;
  for (ArtId id = 1; id <= document.artSlots(); ++id) {
    const Art* const art = document.art(id);
    if (art == nullptr) continue;
    ++alive;
    ExpectDrawable(*art);
    ExpectKind(document, id);
  }
  Expect(alive == inTree, "art hangs in the tree, each in one place");
  Expect(std::count(state.layers.begin(), state.layers.end(), state.currentLayer) == 1,
         "one layer is current");
  Expect(state.activeArtboard < state.artboards.size(), "one artboard is active");
  for (const Artboard& artboard : state.artboards) {
    const AIRealRect& place = artboard.position;
    Expect(IsUsable(place.left) && IsUsable(place.bottom), "an artboard lies somewhere");
    Expect(place.right > place.left && place.top > place.bottom, "an artboard has a size");
    Expect(IsUsable(place.right) && IsUsable(place.top), "and ends somewhere");
  }
}

#include "SelectionCommands.h"

#include <algorithm>
#include <array>
#include <set>
#include <tuple>

#include "Paint.h"

namespace host {
namespace {

// `top` lies in nothing that is locked or hidden.
void addSelectable(const Document& document, ArtId top, std::vector<ArtId>& found) {
  std::vector<ArtId> open{top};
  while (!open.empty()) {
    const ArtId id = open.back();
    open.pop_back();
    const Art& art = *document.art(id);
    if (art.locked || art.hidden) continue;
    if (art.type != kGroupArt) {
      found.push_back(id);
      continue;
    }
    for (ArtId child = art.lastChild; child != 0; child = document.art(child)->above) open.push_back(child);
  }
}

// What makes two strokes the same: kind, components or tint, swatch or paint server, and width.
using StrokeKey = std::tuple<AIColorTag, std::array<double, 4>, const void*>;

StrokeKey keyOf(const AIStrokeStyle& stroke) {
  const AIColorUnion& c = stroke.color.c;
  switch (stroke.color.kind) {
    case kGrayColor:
      return {kGrayColor, {c.g.gray}, nullptr};
    case kFourColor:
      return {kFourColor, {c.f.cyan, c.f.magenta, c.f.yellow, c.f.black}, nullptr};
    case kThreeColor:
      return {kThreeColor, {c.rgb.red, c.rgb.green, c.rgb.blue}, nullptr};
    case kCustomColor:
      return {kCustomColor, {c.c.tint}, c.c.color};
    case kGradient:
    case kPattern:
      return {stroke.color.kind, {}, c.s.server};
    case kNoneColor:
      break;
  }
  return {kNoneColor, {}, nullptr};
}

const AIStrokeStyle* strokeOf(const Document& document, ArtId id) {
  const AIPathStyle* style = document.styleOf(id);
  return style != nullptr && paintsStroke(*style) ? &style->stroke : nullptr;
}

}  // namespace

std::vector<ArtId> selectableArt(const Document& document, ArtId top) {
  std::vector<ArtId> found;
  const Art* art = document.art(top);
  if (art == nullptr || !document.isEditable(top)) return found;
  const Art* parent = document.art(art->parent);
  const bool isPart = parent != nullptr && parent->type == kCompoundPathArt;
  addSelectable(document, isPart ? art->parent : top, found);
  return found;
}

std::vector<ArtId> selectableArt(const Document& document) {
  std::vector<ArtId> found;
  for (const LayerId id : document.state().layers) {
    const Layer& layer = *document.layer(id);
    if (layer.visible && layer.editable) addSelectable(document, layer.root, found);
  }
  return found;
}

bool selectEditable(Document& document, ArtId top) {
  if (!document.isEditable(top)) return false;
  for (const ArtId id : selectableArt(document, top)) document.setSelected(id, true);
  return true;
}

void selectOnly(Document& document, const std::vector<ArtId>& art) {
  std::vector<ArtId> wanted = art;
  std::sort(wanted.begin(), wanted.end());
  for (const ArtId id : document.selection()) {
    if (!std::binary_search(wanted.begin(), wanted.end(), id)) document.setSelected(id, false);
  }
  for (const ArtId id : wanted) document.setSelected(id, true);
}

void selectAll(Document& document) {
  selectOnly(document, selectableArt(document));
}

void deselect(Document& document) {
  document.deselectAll();
}

void selectInverse(Document& document) {
  std::vector<ArtId> others = selectableArt(document);
  const auto isSelected = [&](ArtId id) { return document.isSelected(id); };
  others.erase(std::remove_if(others.begin(), others.end(), isSelected), others.end());
  selectOnly(document, others);
}

void selectSameStroke(Document& document) {
  std::set<StrokeKey> wanted;
  for (const ArtId id : document.selection()) {
    if (const AIStrokeStyle* stroke = strokeOf(document, id)) wanted.insert(keyOf(*stroke));
  }
  if (wanted.empty()) return;
  for (const ArtId id : selectableArt(document)) {
    const AIStrokeStyle* stroke = strokeOf(document, id);
    if (stroke != nullptr && wanted.count(keyOf(*stroke)) != 0) document.setSelected(id, true);
  }
}

void deleteSelection(Document& document) {
  for (const ArtId id : document.selection()) {
    ArtId emptied = id;
    while (document.isEditable(emptied)) {
      const ArtId parent = document.art(emptied)->parent;
      document.deleteArt(emptied);
      if (parent == 0 || document.art(parent)->firstChild != 0) break;
      emptied = parent;
    }
  }
}

}  // namespace host

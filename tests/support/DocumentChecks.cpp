#include "DocumentChecks.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

#include "Document.h"

namespace host {
namespace {

constexpr double kLargest = 1e12;  // document units

class Checker {
 public:
  explicit Checker(const Document& document) : document_(document) {}

  std::vector<std::string> broken() {
    checkLayers();
    checkArt();
    checkSwatches();
    checkChoices();
    checkSelection();
    return std::move(broken_);
  }

 private:
  void expect(bool holds, const std::string& promise) {
    if (!holds) broken_.push_back(promise);
  }
  static std::string named(const char* kind, ObjectId id) { return kind + (" " + std::to_string(id)); }

  static bool isUsable(double number) { return std::abs(number) <= kLargest; }

  void checkLayers() {
    std::set<LayerId> listed;
    for (const LayerId id : document_.state().layers) {
      const Layer* layer = document_.layer(id);
      expect(listed.insert(id).second, named("layer", id) + " is listed once");
      expect(layer != nullptr, named("listed layer", id) + " is alive");
      const Art* root = layer == nullptr ? nullptr : document_.art(layer->root);
      const bool isRoot =
          root != nullptr && root->type == kGroupArt && root->parent == 0 && root->rootOf == id;
      expect(isRoot, named("layer", id) + " has a root group of its own");
      if (isRoot) walk(layer->root);
    }
    for (LayerId id = 1; id <= document_.layerSlots(); ++id) {
      expect(document_.layer(id) == nullptr || listed.count(id) == 1, named("live layer", id) + " is listed");
    }
  }

  // Counts what hangs below; `reached_` also keeps a broken tree from being walked for ever.
  void walk(ArtId id) {
    if (!reached_.insert(id).second) return expect(false, named("art", id) + " hangs in one place");
    const Art& art = *document_.art(id);
    ArtId above = 0;
    for (ArtId child = art.firstChild; child != 0;) {
      const Art* held = document_.art(child);
      if (held == nullptr) return expect(false, named("child", child) + " is alive");
      expect(held->parent == id, named("child", child) + " knows its parent");
      expect(held->above == above, named("child", child) + " knows what is above it");
      expect(art.type == kGroupArt || (art.type == kCompoundPathArt && held->type == kPathArt),
             named("child", child) + " may lie there");
      above = child;
      walk(child);
      child = held->below;
      if (reached_.count(child) != 0) return expect(false, named("child", child) + " comes once");
    }
    expect(art.lastChild == above, named("art", id) + " knows its last child");
  }

  void checkArt() {
    for (ArtId id = 1; id <= document_.artSlots(); ++id) {
      const Art* art = document_.art(id);
      if (art == nullptr) continue;
      expect(reached_.count(id) == 1, named("live art", id) + " hangs in the tree");
      expect((art->type == kPathArt) == (art->path != nullptr), named("art", id) + " has segments if a path");
      const Art* parent = document_.art(art->parent);
      const bool isPart = art->type == kPathArt && parent != nullptr && parent->type == kCompoundPathArt;
      const bool isPainted = (art->type == kPathArt && !isPart) || art->type == kCompoundPathArt;
      expect(isPainted == (art->style != nullptr), named("art", id) + " has a style if it is painted");
      if (art->style) checkStyle(*art->style, named("art", id));
      if (art->path) checkPath(*art->path, named("art", id));
      if (art->body) checkBody(*art->body, named("art", id));
    }
  }
  void checkBody(const Body& body, const std::string& whose) {
    for (const Body::Part& part : body.parts) {
      for (const PathGeometry& path : part.paths) checkPath(path, whose);
      checkStyle(part.style, whose);
    }
  }
  void checkPath(const PathGeometry& path, const std::string& whose) {
    for (const AIPathSegment& segment : path.segments) {
      for (const AIRealPoint& point : {segment.in, segment.p, segment.out}) {
        if (!isUsable(point.x) || !isUsable(point.y)) expect(false, whose + " is somewhere");
      }
    }
  }
  void checkStyle(const AIPathStyle& style, const std::string& whose) {
    if (style.fillPaint != 0) checkColor(style.fill.color, whose + "'s fill");
    if (style.strokePaint != 0) checkColor(style.stroke.color, whose + "'s stroke");
    const AIStrokeStyle& stroke = style.stroke;
    expect(isUsable(stroke.width) && stroke.width >= 0, whose + " has a width");
    expect(std::isfinite(stroke.miterLimit) && stroke.miterLimit >= 1, whose + "'s miters have their limit");
    expect(
        stroke.dash.length >= 0 && stroke.dash.length <= kMaxDashComponents && isUsable(stroke.dash.offset),
        whose + "'s dashes have their room");
    for (int i = 0; i < std::min<int>(stroke.dash.length, kMaxDashComponents); ++i)
      expect(std::isfinite(stroke.dash.array[i]) && stroke.dash.array[i] >= 0,
             whose + "'s dash has a length");
  }
  void checkColor(const AIColor& color, const std::string& whose) {
    if (color.kind == kCustomColor) {
      const ObjectId id = idOfHandle(color.c.c.color, HandleKind::CustomColor, document_.serial());
      expect(document_.customColor(id) != nullptr, whose + " refers to a live custom colour");
    }
    if (color.kind == kGradient || color.kind == kPattern) {
      const ObjectId id = idOfHandle(color.c.s.server, HandleKind::PaintServer, document_.serial());
      expect(document_.paintServer(id) != nullptr, whose + " refers to a gradient or pattern that is there");
    }
  }

  void checkSwatches() {
    std::set<SwatchId> listed;
    const std::vector<SwatchGroupId>& groups = document_.state().swatchGroups;
    for (const SwatchId id : document_.state().swatches) {
      const Swatch* swatch = document_.swatch(id);
      expect(swatch != nullptr && listed.insert(id).second,
             named("swatch", id) + " is alive and listed once");
      if (swatch == nullptr) continue;
      checkColor(swatch->color, named("swatch", id));
      const bool isGrouped = std::find(groups.begin(), groups.end(), swatch->group) != groups.end();
      expect(swatch->group == 0 || isGrouped, named("swatch", id) + "'s group is listed");
    }
    for (const SwatchGroupId id : groups) {
      expect(document_.swatchGroup(id) != nullptr, named("swatch group", id) + " is alive");
    }
  }

  void checkChoices() {
    const DocumentState& state = document_.state();
    const bool isListed =
        std::find(state.layers.begin(), state.layers.end(), state.currentLayer) != state.layers.end();
    expect(isListed || (state.layers.empty() && state.currentLayer == 0), "the current layer is listed");
    expect(state.activeArtboard < state.artboards.size(), "the active artboard is there");
    for (const Artboard& board : state.artboards) {
      const AIRealRect& place = board.position;
      const bool isSomewhere =
          isUsable(place.left) && isUsable(place.right) && isUsable(place.top) && isUsable(place.bottom);
      expect(isSomewhere && place.right > place.left && place.top > place.bottom, "an artboard has a size");
    }
  }

  void checkSelection() {
    std::set<LayerId> holders;
    for (const ArtId id : document_.selection()) {
      const Art* art = document_.art(id);
      if (art == nullptr) {
        expect(false, named("selected art", id) + " is alive");
        continue;
      }
      expect(document_.isSelected(id), named("selected art", id) + " counts as selected");
      expect(art->type != kGroupArt, named("selected art", id) + " is no group");
      expect(document_.isEditable(id), named("selected art", id) + " is neither locked nor hidden");
      const Art* parent = document_.art(art->parent);
      expect(parent != nullptr && parent->type == kGroupArt, named("selected art", id) + " is no part");
      holders.insert(document_.layerOfArt(id));
    }
    for (const LayerId id : document_.state().layers) {
      const Layer* layer = document_.layer(id);
      expect(layer == nullptr || document_.holdsSelected(layer->root) == (holders.count(id) != 0),
             named("layer", id) + " knows whether it holds selected art");
    }
  }

  const Document& document_;
  std::set<ArtId> reached_;
  std::vector<std::string> broken_;
};

std::string text(double number) {
  return " " + std::to_string(std::llround(number * 1e4));
}

class Content {
 public:
  explicit Content(const Document& document) : document_(document) {}

  std::vector<std::string> lines() {
    for (const LayerId id : document_.state().layers) addLayer(*document_.layer(id));
    if (lines_.empty()) lines_.emplace_back("layer Layer 1");  // nor has it any for a drawing without layers
    for (const SwatchGroupId id : document_.state().swatchGroups) {
      lines_.push_back("group " + document_.swatchGroup(id)->name);
    }
    for (const SwatchId id : document_.state().swatches) {
      const Swatch& swatch = *document_.swatch(id);
      const SwatchGroup* group = document_.swatchGroup(swatch.group);
      lines_.push_back("swatch " + swatch.name + textOf(swatch.color) +
                       (group == nullptr ? "" : " in " + group->name));
    }
    for (const Artboard& board : document_.state().artboards) {
      const AIRealRect& place = board.position;
      lines_.push_back("artboard " + board.name + text(place.left) + text(place.top) + text(place.right) +
                       text(place.bottom));
    }
    return std::move(lines_);
  }

 private:
  void addLayer(const Layer& layer) {
    lines_.push_back("layer " + layer.title + (layer.visible ? "" : " hidden") +
                     (layer.editable ? "" : " locked") + (layer.step ? " step " + *layer.step : "") +
                     (document_.art(layer.root)->clip ? " clipped" : ""));
    addArt(layer.root, " ");
  }
  void addArt(ArtId id, const std::string& indent) {
    const Art& art = *document_.art(id);
    const bool isPart = art.type == kPathArt && !art.style;
    if (art.parent != 0) {
      lines_.push_back(indent + std::to_string(art.type) + " " + (isPart ? "" : art.name) +
                       (art.hidden ? " hidden" : "") + (art.locked ? " locked" : "") +
                       (art.clip ? " clipped" : "") + (art.style ? textOf(*art.style) : "") +
                       (art.path ? textOf(*art.path) : ""));
    }
    for (ArtId child = art.firstChild; child != 0; child = document_.art(child)->below) {
      addArt(child, indent + " ");
    }
  }
  std::string textOf(const AIColor& color) const {
    std::string line = " colour " + std::to_string(color.kind);
    const AIReal* const numbers = color.kind == kCustomColor ? &color.c.c.tint : &color.c.f.cyan;
    const int counts[] = {1, 4, 0, 1, 0, 3, 0};
    for (int i = 0; i < counts[color.kind]; ++i) line += text(numbers[i]);
    if (color.kind != kCustomColor) return line;
    const ObjectId id = idOfHandle(color.c.c.color, HandleKind::CustomColor, document_.serial());
    return line + " " + document_.customColor(id)->name;
  }
  std::string textOf(const AIPathStyle& style) const {
    std::string line;
    if (style.fillPaint != 0)
      line += " fill" + textOf(style.fill.color) + (style.fill.overprint ? " over" : "");
    if (style.evenodd != 0) line += " evenodd";
    if (style.strokePaint == 0) return line;
    const AIStrokeStyle& stroke = style.stroke;
    line += " stroke" + textOf(stroke.color) + (stroke.overprint ? " over" : "") + text(stroke.width) +
            text(stroke.cap) + text(stroke.join) + text(stroke.miterLimit);
    for (int i = 0; i < stroke.dash.length; ++i) line += text(stroke.dash.array[i]);
    return line + (stroke.dash.length > 0 ? text(stroke.dash.offset) : "");
  }
  static std::string textOf(const PathGeometry& path) {
    std::string line = path.closed ? " closed" : " open";
    for (const AIPathSegment& segment : path.segments) {
      for (const AIRealPoint point : {segment.in, segment.p, segment.out})
        line += text(point.x) + text(point.y);
    }
    return line;
  }

  const Document& document_;
  std::vector<std::string> lines_;
};

}  // namespace

std::vector<std::string> brokenPromises(const Document& document) {
  return Checker(document).broken();
}

std::vector<std::string> contentLines(const Document& document) {
  return Content(document).lines();
}

}  // namespace host

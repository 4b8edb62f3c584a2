#include "DrawnArt.h"

#include "Geometry.h"

namespace host {

namespace {

class Walk {
 public:
  Walk(const Document& document, DrawnArt& drawn) : document_(document), drawn_(drawn) {}

  // An art and all it holds, from the bottom up.
  void addTree(ArtId top) {
    ArtId id = top;
    while (true) {
      if (enter(id)) {
        id = document_.art(id)->lastChild;
        continue;
      }
      while (id != top && document_.art(id)->above == 0) {
        id = document_.art(id)->parent;
        leave(id);
      }
      if (id == top) return;
      id = document_.art(id)->above;
    }
  }

 private:
  std::uint32_t objectCount() const { return static_cast<std::uint32_t>(drawn_.objects.size()); }
  std::uint32_t pathCount() const { return static_cast<std::uint32_t>(drawn_.paths.size()); }

  // True if the walk goes on below; then leave() follows.
  bool enter(ArtId id) {
    const Art& art = *document_.art(id);
    drawn_.ranges[id].first = drawn_.ranges[id].end = objectCount();
    if (art.hidden || art.guide) return false;
    const std::uint32_t scope =
        scopeInside(art.clip.get(), scopes_.empty() ? DrawnArt::kNone : scopes_.back());
    if (art.type == kGroupArt && art.lastChild != 0) {
      scopes_.push_back(scope);
      return true;
    }
    addObjects(id, art, scope);
    drawn_.ranges[id].end = objectCount();
    return false;
  }

  void leave(ArtId id) {
    scopes_.pop_back();
    drawn_.ranges[id].end = objectCount();
  }

  std::uint32_t scopeInside(const Clip* clip, std::uint32_t outer) {
    for (; clip != nullptr; clip = clip->further.get()) {
      drawn_.scopes.push_back({clip, outer});
      outer = static_cast<std::uint32_t>(drawn_.scopes.size() - 1);
    }
    return outer;
  }

  void addObjects(ArtId id, const Art& art, std::uint32_t scope) {
    const std::uint32_t firstPath = pathCount();
    if (art.type == kCompoundPathArt) {
      addCompoundPaths(art);
      addObject(id, art.style.get(), false, scope, firstPath);
    } else if (art.type == kPathArt) {
      drawn_.paths.push_back(art.path.get());
      addObject(id, art.style.get(), false, scope, firstPath);
    } else if (art.body) {
      addBody(id, *art.body, scope);
    }
  }

  void addCompoundPaths(const Art& compound) {
    const std::uint32_t firstPath = pathCount();
    for (ArtId child = compound.lastChild; child != 0; child = document_.art(child)->above) {
      const Art& art = *document_.art(child);
      if (art.hidden || art.guide || !art.path) continue;
      drawn_.ranges[child] = {objectCount(), objectCount() + 1, pathCount() - firstPath};
      drawn_.paths.push_back(art.path.get());
    }
  }

  void addBody(ArtId id, const Body& body, std::uint32_t scope) {
    for (const Body::Part& part : body.parts) {
      const std::uint32_t firstPath = pathCount();
      for (const PathGeometry& path : part.paths) drawn_.paths.push_back(&path);
      addObject(id, &part.style, true, scopeInside(part.clip.get(), scope), firstPath);
    }
    if (!body.parts.empty() || isEmpty(body.box)) return;
    addObject(id, nullptr, true, scope, pathCount());
    drawn_.objects.back().box = body.box;
  }

  void addObject(ArtId id, const AIPathStyle* style, bool isBody, std::uint32_t scope,
                 std::uint32_t firstPath) {
    drawn_.objects.push_back({id, style, kEmptyRect, isBody, scope, firstPath, pathCount()});
  }

  const Document& document_;
  DrawnArt& drawn_;
  std::vector<std::uint32_t> scopes_;  // of the groups that hold the current art
};

}  // namespace

DrawnArt::DrawnArt(const Document& document) : ranges(document.artSlots() + 1) {
  Walk walk(document, *this);
  const std::vector<LayerId>& layers = document.state().layers;
  for (auto id = layers.rbegin(); id != layers.rend(); ++id) {
    const Layer* layer = document.layer(*id);
    if (layer != nullptr && layer->visible && document.art(layer->root) != nullptr) walk.addTree(layer->root);
  }
}

}  // namespace host

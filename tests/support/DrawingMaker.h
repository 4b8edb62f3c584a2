// Short ways to say what a test draws.
#pragma once

#include <initializer_list>
#include <memory>
#include <vector>

#include "Document.h"
#include "Handles.h"

namespace host::testing {

using Points = std::vector<AIRealPoint>;

inline PathGeometry straight(const Points& points, bool closed) {
  PathGeometry path;
  path.closed = closed;
  for (const AIRealPoint p : points) path.segments.push_back({p, p, p, 1});
  return path;
}

inline PathGeometry box(double left, double bottom, double right, double top) {
  return straight({{left, bottom}, {right, bottom}, {right, top}, {left, top}}, true);
}

// Control points of curves joined end to end: 1 + 3 n for an open path, 3 n for a closed one.
inline PathGeometry curved(const Points& points, bool closed) {
  PathGeometry path;
  path.closed = closed;
  for (std::size_t i = 0; i < points.size(); i += 3) {
    const AIRealPoint before = i > 0 ? points[i - 1] : closed ? points.back() : points[i];
    const AIRealPoint after = i + 1 < points.size() ? points[i + 1] : points[i];
    path.segments.push_back({points[i], before, after, 1});
  }
  return path;
}

inline AIPathStyle unpainted() {
  AIPathStyle style{};
  style.fill.color.kind = style.stroke.color.kind = kNoneColor;
  style.stroke.miterLimit = 4;
  return style;
}

inline AIPathStyle filled(bool evenOdd = false) {
  AIPathStyle style = unpainted();
  style.fillPaint = 1;
  style.fill.color.kind = kThreeColor;
  style.evenodd = evenOdd;
  return style;
}

inline AIPathStyle stroked(double width, AILineCap cap = kAIButtCap, AILineJoin join = kAIMiterJoin,
                           double miterLimit = 4) {
  AIPathStyle style = unpainted();
  style.strokePaint = 1;
  style.stroke.color.kind = kThreeColor;
  style.stroke.width = width;
  style.stroke.cap = cap;
  style.stroke.join = join;
  style.stroke.miterLimit = miterLimit;
  return style;
}

inline AIColor customPaint(const Document& document, CustomColorId id, double tint = 0) {
  AIColor color{};
  color.kind = kCustomColor;
  color.c.c = {makeHandle<AICustomColorHandle>(HandleKind::CustomColor, document.serial(), id), tint};
  return color;
}

inline std::shared_ptr<const Clip> clipTo(std::vector<PathGeometry> paths,
                                          std::shared_ptr<const Clip> further = nullptr,
                                          bool evenOdd = false) {
  auto clip = std::make_shared<Clip>();
  clip->outlines.push_back({std::move(paths), evenOdd});
  clip->further = std::move(further);
  return clip;
}

// A document with one layer. What is added later lies above; parent 0 is the layer's group.
class Sheet {
 public:
  Document document;

  Sheet() : layer_(document.insertLayer(0, kPlaceAboveAll)) {}
  LayerId layer() const { return layer_; }
  ArtId root() const { return document.layer(layer_)->root; }

  ArtId group(ArtId parent = 0, std::shared_ptr<const Clip> clip = nullptr) {
    const ArtId id = newArt(kGroupArt, parent);
    change(id, [&](Art& art) { art.clip = std::move(clip); });
    return id;
  }
  ArtId path(const PathGeometry& geometry, const AIPathStyle& style, ArtId parent = 0) {
    const ArtId id = newArt(kPathArt, parent);
    document.setPath(id, std::make_shared<const PathGeometry>(geometry));
    document.setStyle(id, std::make_shared<const AIPathStyle>(style));
    return id;
  }
  ArtId compound(const std::vector<PathGeometry>& paths, const AIPathStyle& style, ArtId parent = 0) {
    const ArtId id = newArt(kCompoundPathArt, parent);
    document.setStyle(id, std::make_shared<const AIPathStyle>(style));
    for (const PathGeometry& geometry : paths) {
      document.setPath(newArt(kPathArt, id), std::make_shared<const PathGeometry>(geometry));
    }
    return id;
  }
  ArtId body(Body body, ArtId parent = 0) {
    const ArtId id = newArt(kGroupArt, parent);
    change(id, [&](Art& art) {
      art.type = kTextFrameArt;
      art.body = std::make_shared<const Body>(std::move(body));
    });
    return id;
  }
  template <typename Change>
  void change(ArtId id, Change apply) {
    Art art = *document.art(id);
    apply(art);
    document.initialiseArt(id, art);
  }

 private:
  ArtId newArt(AIArtType type, ArtId parent) {
    return *document.newArt(type, kPlaceInsideOnTop, parent == 0 ? root() : parent);
  }

  LayerId layer_;
};

}  // namespace host::testing

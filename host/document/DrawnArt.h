// What of a document is drawn, as a flat list from the bottom up.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Document.h"

namespace host {

// The records hold pointers into the document and end with its next change. Hidden layers and art leave
// nothing here, nor do guides; art without paint does.
struct DrawnArt {
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  // A clip that limits objects, inside another (kNone: in no other). Inner ones come after their outer ones,
  // in the order of the walk.
  struct Scope {
    const Clip* clip;  // without its `further`, which is a scope of its own
    std::uint32_t outer;
  };
  // What is painted in one go: a path, a compound path, a part of a body, or the box of a body.
  struct Object {
    ArtId art;
    const AIPathStyle* style;  // null for a box
    AIRealRect box;            // of a body without parts
    bool isBody;
    std::uint32_t scope;
    std::uint32_t firstPath, endPath;  // none for a box
  };
  // Which objects an art and all it holds are; for a path inside a compound path, the compound's object and
  // which of that object's paths it is.
  struct Range {
    std::uint32_t first = 0, end = 0;
    std::uint32_t path = kNone;
  };

  explicit DrawnArt(const Document& document);

  std::vector<Scope> scopes;
  std::vector<Object> objects;
  std::vector<const PathGeometry*> paths;
  std::vector<Range> ranges;  // by art id
};

}  // namespace host

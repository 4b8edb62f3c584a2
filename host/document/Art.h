// The records of art: what an object is, how it looks and where it hangs in the tree.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "AIArt.h"
#include "AIPath.h"
#include "AIPathStyle.h"
#include "Handles.h"

namespace host {

using ArtId = ObjectId;
using LayerId = ObjectId;

// The place in the file that an object was read from, in terms of the format; 0: made since.
using SourceId = std::uint32_t;

// One run of segments, in document units.
struct PathGeometry {
  std::vector<AIPathSegment> segments;
  bool closed = false;
};

// What limits the drawing of an art and all it holds: the union of some filled outlines, cut down by
// another clip if there is one.
struct Clip {
  struct Outline {
    std::vector<PathGeometry> paths;
    bool evenOdd = false;
  };
  std::vector<Outline> outlines;  // none: nothing is drawn
  std::shared_ptr<const Clip> further;
};

// The look of art that is kept as a whole (text, images, instances): its outlines with their paint, or
// only a box.
struct Body {
  struct Part {
    std::vector<PathGeometry> paths;  // one compound outline
    AIPathStyle style;
    std::shared_ptr<const Clip> clip;
  };
  AIRealRect box;           // used when there are no parts; left > right if nothing is drawn
  std::vector<Part> parts;  // from the bottom up
};

struct Art {
  bool alive = true;
  AIArtType type = kUnknownArt;
  bool hidden = false;  // by itself, whatever its layer does
  bool locked = false;
  bool guide = false;

  // The tree. The first child is the topmost. A root group has no parent and names its layer.
  ArtId parent = 0;
  ArtId above = 0;
  ArtId below = 0;
  ArtId firstChild = 0;
  ArtId lastChild = 0;
  LayerId rootOf = 0;

  SourceId source = 0;
  ArtId copyOf = 0;                          // what it was copied from, or that one was; 0: no copy
  std::string name;                          // UTF-8
  std::shared_ptr<const PathGeometry> path;  // path art; never null there
  // Paths outside a compound path and compound paths; never null there. A path inside a compound path
  // has none: the compound path's holds for it.
  std::shared_ptr<const AIPathStyle> style;
  std::shared_ptr<const Body> body;  // art of other kinds; may be null: draws nothing
  std::shared_ptr<const Clip> clip;  // null: not clipped
};

}  // namespace host

// What became of the art and layers that were read: kept, moved, gone.
#pragma once

#include <unordered_map>
#include <vector>

#include "SvgDrawing.h"

namespace host {

// Which entries of `now` stay where they are, if as few as possible are to be moved: a longest part of it
// that has the order of `before`.
std::vector<bool> entriesInPlace(const std::vector<ObjectId>& now, const std::vector<ObjectId>& before);

// What was read and is gone, but has left a copy, counts as kept: the copy is its heir, and has its original
// and its element. Lists of children run from the bottom up, as a file is written.
class SvgChanges {
 public:
  explicit SvgChanges(const SvgDrawing& drawing);

  ArtId heirOf(ArtId id) const { return art_.heirOf(id); }  // itself if it has none
  const Art* original(ArtId id) const;                      // null for art that was not read
  const Art* model(ArtId id) const;  // the original, or else what it is a copy of, as that was read
  const Layer* originalLayer(LayerId id) const;
  const Layer* modelLayer(LayerId id) const;

  std::vector<LayerId> originalLayers() const;  // from the top down, those with heirs replaced by them

  // The element that the art had for itself in the file, has still; 0 if it had or has none, as a path of
  // a compound path, which is part of another one's.
  NodeIndex originalElementOf(ArtId id) const;
  NodeIndex elementOf(ArtId id) const;

  std::vector<ArtId> originalChildren(ArtId id) const;
  std::vector<ArtId> children(ArtId id) const;

  // Is the outline of a path, or of a compound path, another one than its model's?
  bool isReshaped(ArtId id) const;

 private:
  struct Heirs {
    std::unordered_map<ObjectId, ObjectId> heirs;
    std::unordered_map<ObjectId, ObjectId> originals;  // of the heirs

    void add(ObjectId original, ObjectId heir);
    ObjectId heirOf(ObjectId id) const;
    ObjectId originalOf(ObjectId id) const;  // itself if it is no heir
  };

  const SvgDrawing& drawing_;
  const Document& document_;
  Heirs art_;
  Heirs layers_;
};

}  // namespace host

// Which art of a document is selected.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "Art.h"

namespace host {

// A set of ids in no order. Telling whether one is in it, adding and removing one take the same time however
// many there are.
class Selection {
 public:
  using Snapshot = std::shared_ptr<const std::vector<ArtId>>;  // never null

  const std::vector<ArtId>& members() const { return members_; }
  bool has(ArtId id) const { return id < places_.size() && places_[id] != 0; }
  void add(ArtId id);
  void remove(ArtId id);
  void clear();

  // Different after any change.
  std::uint64_t revision() const { return revision_; }
  // What it is now; the same one until the next change.
  Snapshot snapshot() const;
  void restore(const Snapshot& snapshot);

 private:
  void changed();

  std::vector<ArtId> members_;
  std::vector<std::uint32_t> places_;  // by id: the place in `members_`, from 1; 0: not in it
  std::uint64_t revision_ = 1;
  mutable Snapshot snapshot_;  // null if it is not known
};

}  // namespace host

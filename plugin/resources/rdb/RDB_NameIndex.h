// Finds one of many children by its name.
#pragma once

#include <cstddef>
#include <vector>

#include "RDB.h"

struct RDB_Node;

// A table with open addressing, at most half full. Of the nodes with the same bucket and name it knows the
// one that was added last, which is the first of them in the bucket. It does not own the nodes.
class RDB_NameIndex {
 public:
  RDB_NameIndex();

  RDB_Node* Find(const RDB_KeyPart& part) const { return places_[PlaceOf(part)]; }
  // Throws std::bad_alloc, and has done nothing then.
  void Add(RDB_Node& node);

 private:
  std::size_t PlaceOf(const RDB_KeyPart& part) const;
  void Grow();

  std::vector<RDB_Node*> places_;  // a power of two of them
  unsigned shift_;                 // from 32 bits of hash to a place
  std::size_t count_ = 0;
};

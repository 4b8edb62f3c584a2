// Finds one of many children by its name.
#pragma once

#include <cstddef>
#include <vector>

#include "RDB_Node.h"

// A table with open addressing, at most half full. Of the nodes with the same bucket and name it knows the
// one that was added last, which is the first of them in the bucket. It does not own the nodes.
class RDB_NameIndex {
 public:
  RDB_NameIndex();

  // Null if there is none.
  RDB_Node* Find(const RDB_KeyPart& part) const { return places_[PlaceOf(part)].node; }
  // Throws std::bad_alloc, and has done nothing then.
  void Add(RDB_Node& node);

 private:
  // The mark is compared first, so the node is touched only if it is the one looked for. It stands beside the
  // node, for a lookup in texts that are asked for now and then waits for memory at each step.
  struct Place {
    unsigned mark = 0;  // 0: free
    RDB_Node* node = nullptr;
  };

  static unsigned MarkOf(unsigned hash) { return hash | 1u; }
  // The product spreads the hashes of short names, which fill the low bits only (Knuth, The Art of Computer
  // Programming 3, 6.4).
  std::size_t FirstPlaceOf(unsigned mark) const { return (mark * 2654435769u) >> shift_; }
  // Where the node stands, or the free place where it would.
  std::size_t PlaceOf(const RDB_KeyPart& part) const {
    const unsigned mark = MarkOf(part.hash);
    std::size_t at = FirstPlaceOf(mark);
    while (places_[at].mark != 0 && (places_[at].mark != mark || !places_[at].node->IsCalled(part))) {
      at = (at + 1) & mask_;
    }
    return at;
  }
  void Grow();

  std::vector<Place> places_;  // a power of two of them
  std::size_t mask_;           // from any number to a place
  unsigned shift_;             // from 32 bits of hash to a place
  std::size_t count_ = 0;
};

#include "RDB_NameIndex.h"

#include "RDB_Node.h"

namespace {

constexpr std::size_t kFirstPlaces = 64;
constexpr unsigned kFirstShift = 26;  // 2^(32 - 26) places

}  // namespace

RDB_NameIndex::RDB_NameIndex() : places_(kFirstPlaces, nullptr), shift_(kFirstShift) {}

// Where the node stands, or the free place where it would. The product spreads the hashes of short names,
// which fill the low bits only (Knuth, The Art of Computer Programming 3, 6.4).
std::size_t RDB_NameIndex::PlaceOf(const RDB_KeyPart& part) const {
  const std::size_t mask = places_.size() - 1;
  std::size_t place = (part.hash * 2654435769u) >> shift_;
  while (places_[place] != nullptr && !places_[place]->IsCalled(part)) place = (place + 1) & mask;
  return place;
}

void RDB_NameIndex::Add(RDB_Node& node) {
  if (2 * (count_ + 1) > places_.size()) Grow();
  RDB_Node*& place = places_[PlaceOf(node.Part())];
  if (place == nullptr) ++count_;
  place = &node;
}

void RDB_NameIndex::Grow() {
  std::vector<RDB_Node*> old(2 * places_.size(), nullptr);
  old.swap(places_);
  if (shift_ > 0) --shift_;
  for (RDB_Node* node : old) {
    if (node != nullptr) places_[PlaceOf(node->Part())] = node;
  }
}

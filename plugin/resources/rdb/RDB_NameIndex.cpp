#include "RDB_NameIndex.h"

namespace {

constexpr std::size_t kFirstPlaces = 64;
constexpr unsigned kFirstShift = 26;  // 2^(32 - 26) places

}  // namespace

RDB_NameIndex::RDB_NameIndex() : places_(kFirstPlaces), mask_(kFirstPlaces - 1), shift_(kFirstShift) {}

void RDB_NameIndex::Add(RDB_Node& node) {
  if (2 * (count_ + 1) > places_.size()) Grow();
  Place& place = places_[PlaceOf(node.Part())];
  if (place.mark == 0) ++count_;
  place = {MarkOf(node.hash), &node};
}

// No two of the nodes are called the same, so each goes to the next free place.
void RDB_NameIndex::Grow() {
  std::vector<Place> old(2 * places_.size());
  old.swap(places_);
  mask_ = places_.size() - 1;
  if (shift_ > 0) --shift_;
  for (const Place& place : old) {
    if (place.mark == 0) continue;
    std::size_t at = FirstPlaceOf(place.mark);
    while (places_[at].mark != 0) at = (at + 1) & mask_;
    places_[at] = place;
  }
}

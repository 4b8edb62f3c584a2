#include "RDB_NameIndex.h"

namespace {

constexpr std::size_t kFirstPlaces = 64;
constexpr unsigned kFirstShift = 26;  // 2^(32 - 26) places

}  // namespace

RDB_NameIndex::RDB_NameIndex()
    : marks_(kFirstPlaces), nodes_(kFirstPlaces), mask_(kFirstPlaces - 1), shift_(kFirstShift) {}

void RDB_NameIndex::Add(RDB_Node& node) {
  if (4 * (count_ + 1) > nodes_.size()) Grow();
  const std::size_t place = PlaceOf(node.Part());
  if (nodes_[place] == nullptr) ++count_;
  marks_[place] = MarkOf(node.hash);
  nodes_[place] = &node;
}

// No two of the nodes are called the same, so each goes to the next free place.
void RDB_NameIndex::Grow() {
  const std::size_t size = 2 * nodes_.size();
  std::vector<unsigned> marks(size);
  std::vector<RDB_Node*> nodes(size);
  marks_.swap(marks);
  nodes_.swap(nodes);
  mask_ = size - 1;
  if (shift_ > 0) --shift_;
  for (std::size_t at = 0; at < marks.size(); ++at) {
    if (marks[at] == 0) continue;
    std::size_t place = FirstPlaceOf(marks[at]);
    while (marks_[place] != 0) place = (place + 1) & mask_;
    marks_[place] = marks[at];
    nodes_[place] = nodes[at];
  }
}

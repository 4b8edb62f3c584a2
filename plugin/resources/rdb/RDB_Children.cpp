#include "RDB_Children.h"

#include "RDB_Buckets.h"
#include "RDB_Node.h"

namespace {

// A list of that length is searched about as fast as the index.
constexpr unsigned kMostInList = 16;

}  // namespace

RDB_Children::RDB_Children() = default;
RDB_Children::~RDB_Children() = default;

RDB_Node* RDB_Children::Find(const RDB_KeyPart& part) const {
  return buckets ? buckets->names.Find(part) : FindInList(part);
}

RDB_Node* RDB_Children::FindInList(const RDB_KeyPart& part) const {
  for (RDB_Node* node = first; node != nullptr && node->slot <= part.slot; node = node->next) {
    if (node->IsCalled(part)) return node;
  }
  return nullptr;
}

void RDB_Children::Add(RDB_Node& node, unsigned count) {
  if (!buckets && count == kMostInList) MakeBuckets();
  if (buckets) buckets->names.Add(node);
  LinkBefore(FollowerOf(node.slot), node);
  if (buckets) buckets->heads[node.slot] = &node;
  if (node.slot == kRDBStar) stars = &node;
  if (node.slot == kRDBDots) dots = &node;
}

void RDB_Children::MakeBuckets() {
  auto made = std::make_unique<RDB_Buckets>();
  // Backwards, so that the head of a bucket comes last, in the index too.
  for (RDB_Node* node = last; node != nullptr; node = node->previous) {
    made->heads[node->slot] = node;
    made->names.Add(*node);
  }
  buckets = std::move(made);
}

// The first node of the bucket or, if that is empty, of those behind.
RDB_Node* RDB_Children::FollowerOf(unsigned slot) const {
  if (buckets) {
    for (unsigned at = slot; at <= kRDBDots; ++at) {
      if (buckets->heads[at] != nullptr) return buckets->heads[at];
    }
    return nullptr;
  }
  RDB_Node* node = first;
  while (node != nullptr && node->slot < slot) node = node->next;
  return node;
}

void RDB_Children::LinkBefore(RDB_Node* follower, RDB_Node& node) {
  RDB_Node* const before = follower != nullptr ? follower->previous : last;
  node.next = follower;
  node.previous = before;
  (before != nullptr ? before->next : first) = &node;
  (follower != nullptr ? follower->previous : last) = &node;
}

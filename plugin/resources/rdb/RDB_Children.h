// The children of a node, in buckets by hash and two more for the wildcards.
#pragma once

#include <memory>

#include "RDB.h"

struct RDB_Node;
struct RDB_Buckets;

// All children stand in one list, ordered by bucket, the newest of a bucket first: walking it is walking all
// buckets. While they are few the list is all there is; then come the heads of the buckets and an index by
// name. The list links the nodes and does not own them.
struct RDB_Children {
  RDB_Children();
  ~RDB_Children();

  RDB_Node* first = nullptr;
  RDB_Node* last = nullptr;
  RDB_Node* stars = nullptr;  // head of the bucket kRDBStar
  RDB_Node* dots = nullptr;   // head of the bucket kRDBDots
  std::unique_ptr<RDB_Buckets> buckets;

  bool HasWildcards() const { return stars != nullptr || dots != nullptr; }
  // The first node of that name in its bucket, or null.
  RDB_Node* Find(const RDB_KeyPart& part) const;
  // Puts `node` at the head of its bucket; `count` children are there already. Throws std::bad_alloc, and has
  // done nothing then.
  void Add(RDB_Node& node, unsigned count);

 private:
  RDB_Node* FindInList(const RDB_KeyPart& part) const;
  RDB_Node* FollowerOf(unsigned slot) const;
  void LinkBefore(RDB_Node* follower, RDB_Node& node);
  void MakeBuckets();
};

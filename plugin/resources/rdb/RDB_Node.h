// One component of the stored keys, with the value of the key that ends in it.
#pragma once

#include <cstddef>
#include <cstring>
#include <memory>

#include "RDB.h"
#include "RDB_Children.h"
#include "RDB_Value.h"

// A node owns everything below it. The root is a member of its database; all others are made by MakeChild.
struct RDB_Node {
  RDB_Node(const RDB_KeyPart& part, const char* nameOfNode, RDB_Node* parentOfNode);
  RDB_Node(const RDB_Node&) = delete;
  RDB_Node& operator=(const RDB_Node&) = delete;
  ~RDB_Node() { DestroyChildren(); }

  const char* name;                        // unescaped, as long as the node
  RDB_Node* parent;                        // null for the root
  RDB_Node* next = nullptr;                // the neighbours among all children of the parent: by slot,
  RDB_Node* previous = nullptr;            // and the newest of a slot first
  std::unique_ptr<RDB_Children> children;  // null until the first child is made
  RDB_ValueRef value;                      // none for a pure inner node
  unsigned slot;                           // bucket in the parent: 0 to 255, kRDBStar or kRDBDots
  unsigned hash;                           // RDB_Hash of the name
  unsigned nameLength;                     // bytes
  unsigned childCount = 0;

  bool IsCalled(const RDB_KeyPart& part) const {
    return hash == part.hash && slot == part.slot && nameLength == part.length &&
           std::memcmp(name, part.name, part.length) == 0;
  }
  // Slot, hash and name, as a key part that lives no longer than the node.
  RDB_KeyPart Part() const { return {slot, hash, nameLength, name}; }
  // True if the value is a text.
  bool HasText() const { return value && value->type == kRDBString; }

  RDB_Node* FirstChild() const { return children ? children->first : nullptr; }
  // The first node of that name in the bucket of the part, or null.
  RDB_Node* FindChild(const RDB_KeyPart& part) const;
  // A new node at the head of its bucket, even if there is one of that name. Throws std::bad_alloc.
  RDB_Node& MakeChild(const RDB_KeyPart& part);
  RDB_Node& FindOrMakeChild(const RDB_KeyPart& part);

 private:
  void DestroyChildren();
  RDB_Node* DestroyAndLeave(RDB_Node* leaf);
};

// The node behind in the same bucket, or null.
inline const RDB_Node* RDB_NextInBucket(const RDB_Node& node) {
  return node.next != nullptr && node.next->slot == node.slot ? node.next : nullptr;
}

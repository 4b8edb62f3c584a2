#include "Soundness.h"

#include <algorithm>
#include <cstring>

#include "RDB_Hash.h"

namespace {

// Depth first without recursion; null at the end.
const RDB_Node* NextInWalk(const RDB_Node* node) {
  if (node->FirstChild() != nullptr) return node->FirstChild();
  while (node != nullptr && node->next == nullptr) node = node->parent;
  return node != nullptr ? node->next : nullptr;
}

const char* WhatIsUnsoundInNode(const RDB_Node& node) {
  if (std::strlen(node.name) != node.nameLength) return "name and length";
  if (node.hash != RDB_Hash(node.name, node.nameLength)) return "name and hash";
  if (node.slot < kRDBStar && node.slot != RDB_SlotOfHash(node.hash)) return "hash and slot";
  if (node.slot > kRDBDots) return "slot";
  if (node.value && (node.value->refCount == 0 || node.value->size == 0)) return "value";
  if (node.value && node.value->Data()[node.value->size] != '\0') return "NUL behind the value";
  return nullptr;
}

const RDB_Node* FirstOf(const RDB_Node& parent, const RDB_KeyPart& part) {
  for (const RDB_Node* child = parent.FirstChild(); child != nullptr; child = child->next) {
    if (child->slot == part.slot && std::strcmp(child->name, part.name) == 0) return child;
  }
  return nullptr;
}

const char* WhatIsUnsoundBelow(const RDB_Node& parent) {
  unsigned count = 0;
  const RDB_Node* before = nullptr;
  const RDB_Node* heads[] = {nullptr, nullptr};
  for (const RDB_Node* child = parent.FirstChild(); child != nullptr; child = child->next) {
    if (child->parent != &parent) return "parent";
    if (child->previous != before) return "previous";
    if (before != nullptr && before->slot > child->slot) return "order of the buckets";
    if (child->slot >= kRDBStar && heads[child->slot - kRDBStar] == nullptr)
      heads[child->slot - kRDBStar] = child;
    // Long lists only now and then, or this would take the square of their length.
    const bool isProbe = count < 64 || count % 97 == 0;
    if (isProbe && parent.FindChild(child->Part()) != FirstOf(parent, child->Part()))
      return "finding by name";
    before = child;
    ++count;
  }
  if (count != parent.childCount) return "number of children";
  if (!parent.children) return nullptr;
  if (parent.children->last != before) return "last child";
  return parent.children->stars == heads[0] && parent.children->dots == heads[1] ? nullptr : "wildcards";
}

}  // namespace

const char* WhatIsUnsound(const RDB_Database& db) {
  for (const RDB_Node* node = &db.root; node != nullptr; node = NextInWalk(node)) {
    if (const char* const what = WhatIsUnsoundInNode(*node)) return what;
    if (const char* const what = WhatIsUnsoundBelow(*node)) return what;
  }
  return nullptr;
}

std::vector<const RDB_Node*> NodesWithValue(const RDB_Database& db) {
  std::vector<const RDB_Node*> nodes;
  for (const RDB_Node* node = &db.root; node != nullptr; node = NextInWalk(node)) {
    if (node->value) nodes.push_back(node);
  }
  return nodes;
}

std::vector<RDB_KeyPart> PathTo(const RDB_Node& node) {
  std::vector<RDB_KeyPart> path;
  for (const RDB_Node* at = &node; at->parent != nullptr; at = at->parent) path.push_back(at->Part());
  std::reverse(path.begin(), path.end());
  return path;
}

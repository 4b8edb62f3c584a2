#include "RDB_Lookup.h"

#include "RDB_Buckets.h"
#include "RDB_WildcardSearch.h"

namespace {

// Spares the usual search, below a node with many children, its calls.
const RDB_Node* FindChild(const RDB_Children& children, const RDB_KeyPart& part) {
  return children.buckets ? children.buckets->names.Find(part) : children.Find(part);
}

}  // namespace

const RDB_Node* RDB_Lookup(const RDB_Node& root, const RDB_KeyPart* parts, std::size_t count) {
  const RDB_Node* node = &root;
  for (std::size_t at = 0; at < count; ++at) {
    if (!node->children) return nullptr;
    if (node->children->HasWildcards()) return RDB_WildcardSearch(parts, count).Search(*node, at);
    node = FindChild(*node->children, parts[at]);
    if (node == nullptr) return nullptr;
  }
  return node->value ? node : nullptr;
}

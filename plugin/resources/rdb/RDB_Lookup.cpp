#include "RDB_Lookup.h"

#include "RDB_WildcardSearch.h"

const RDB_Node* RDB_Lookup(const RDB_Node& root, const RDB_KeyPart* parts, std::size_t count) {
  const RDB_Node* node = &root;
  for (std::size_t at = 0; at < count; ++at) {
    if (!node->children) return nullptr;
    if (node->children->HasWildcards()) return RDB_WildcardSearch(parts, count).Search(*node, at);
    node = node->children->Find(parts[at]);
    if (node == nullptr) return nullptr;
  }
  return node->value ? node : nullptr;
}

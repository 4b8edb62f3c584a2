#include "RDB_Database.h"

namespace {

// A node of the source with its counterpart in the target.
struct Pair {
  const RDB_Node* source;
  RDB_Node* target;
};

Pair MergeNode(const RDB_Node& source, RDB_Node& parentInTarget) {
  RDB_Node& target = parentInTarget.FindOrMakeChild(source.Part());
  if (source.value) target.value = source.value;
  return {&source, &target};
}

// Up and down by the nodes' own links, since keys may be deeper than any stack. A copy is a new node that
// then gets merged like one that was there.
void MergeTrees(const RDB_Node& source, RDB_Node& target) {
  if (source.value) target.value = source.value;
  Pair at{&source, &target};
  for (;;) {
    if (const RDB_Node* const child = at.source->FirstChild()) {
      at = MergeNode(*child, *at.target);
      continue;
    }
    while (at.source != &source && at.source->next == nullptr) at = {at.source->parent, at.target->parent};
    if (at.source == &source) return;
    at = MergeNode(*at.source->next, *at.target->parent);
  }
}

}  // namespace

void RDB_Merge(RDB_Database* target, const RDB_Database* source) {
  if (!RDB_Begin(target) || !RDB_IsDatabase(source) || target == source) return;
  RDB_CatchOutOfMemory([&] { MergeTrees(source->root, target->root); });
}

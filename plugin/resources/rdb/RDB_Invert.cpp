#include <vector>

#include "RDB_Database.h"
#include "RDB_KeySplitter.h"

namespace {

void PutEntry(RDB_Node& parent, const RDB_KeyPart& text, const RDB_KeyPart& keyPart) {
  parent.FindOrMakeChild(text).value = RDB_ValueRef(std::string_view(keyPart.name, keyPart.length));
}

// Walks the source and keeps the place in the target that belongs to where it is. Nodes of the target are
// made when the first entry below them is, so the place may hang some levels above.
class Inversion {
 public:
  Inversion(const RDB_Node& source, RDB_Node& target) : root_(source), source_(&source), target_(&target) {}

  void Run() {
    const RDB_Node* node = root_.FirstChild();
    while (node != nullptr) {
      if (node->HasText()) {
        PutEntry(MadeTarget(), RDB_PartOfName(node->value->Data()), node->Part());
      } else if (node->childCount > 0) {
        GoBelow(*node);
        node = node->FirstChild();
        continue;
      }
      while (node->next == nullptr && source_ != &root_) {
        node = source_;
        GoAbove();
      }
      node = node->next;
    }
  }

 private:
  void GoBelow(const RDB_Node& node) {
    source_ = &node;
    RDB_Node* const known = missing_ == 0 ? target_->FindChild(node.Part()) : nullptr;
    if (known != nullptr) {
      target_ = known;
    } else {
      ++missing_;
    }
  }

  void GoAbove() {
    source_ = source_->parent;
    if (missing_ > 0) {
      --missing_;
    } else {
      target_ = target_->parent;
    }
  }

  RDB_Node& MadeTarget() {
    std::vector<const RDB_Node*> path;
    path.reserve(missing_);
    for (const RDB_Node* node = source_; path.size() < missing_; node = node->parent) path.push_back(node);
    for (; missing_ > 0; --missing_) target_ = &target_->MakeChild(path[missing_ - 1]->Part());
    return *target_;
  }

  const RDB_Node& root_;
  const RDB_Node* source_;  // whose children are being walked
  RDB_Node* target_;        // belongs to the node `missing_` levels above source_
  std::size_t missing_ = 0;
};

void Invert(const RDB_Node& source, RDB_Node& target) {
  if (source.HasText()) {
    // The key of the root has no component.
    PutEntry(target, RDB_PartOfName(source.value->Data()), {0, 0, 0, ""});
  } else {
    Inversion(source, target).Run();
  }
}

}  // namespace

RDB_Handle RDB_Invert(const RDB_Database* db) {
  if (!RDB_Begin(db)) return nullptr;
  RDB_Handle inverted = RDB_Create();
  if (inverted) RDB_CatchOutOfMemory([&] { Invert(db->root, inverted->root); });
  return inverted;
}

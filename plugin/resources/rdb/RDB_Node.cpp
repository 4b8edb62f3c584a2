#include "RDB_Node.h"

#include <cstring>
#include <limits>
#include <new>

namespace {

// A node and its name in one block, so that comparing the name touches what was just read.
RDB_Node* NewNode(const RDB_KeyPart& part, RDB_Node* parent) {
  if (part.length > std::numeric_limits<unsigned>::max()) throw std::bad_alloc();
  void* const memory = ::operator new(sizeof(RDB_Node) + part.length + 1);
  char* const name = static_cast<char*>(memory) + sizeof(RDB_Node);
  std::memcpy(name, part.name, part.length);
  name[part.length] = '\0';
  return new (memory) RDB_Node(part, name, parent);
}

void DeleteNode(RDB_Node* node) {
  node->~RDB_Node();
  ::operator delete(node);
}

struct NodeDeleter {
  void operator()(RDB_Node* node) const { DeleteNode(node); }
};

}  // namespace

RDB_Node::RDB_Node(const RDB_KeyPart& part, const char* nameOfNode, RDB_Node* parentOfNode)
    : name(nameOfNode),
      parent(parentOfNode),
      slot(part.slot),
      hash(part.hash),
      nameLength(static_cast<unsigned>(part.length)) {}

RDB_Node* RDB_Node::FindChild(const RDB_KeyPart& part) const {
  return children ? children->Find(part) : nullptr;
}

RDB_Node& RDB_Node::MakeChild(const RDB_KeyPart& part) {
  if (!children) children = std::make_unique<RDB_Children>();
  std::unique_ptr<RDB_Node, NodeDeleter> child(NewNode(part, this));
  children->Add(*child, childCount);
  ++childCount;
  return *child.release();
}

RDB_Node& RDB_Node::FindOrMakeChild(const RDB_KeyPart& part) {
  RDB_Node* const child = FindChild(part);
  return child != nullptr ? *child : MakeChild(part);
}

// Goes down to a leaf and up again with the leaves it has removed, since keys may be deeper than any stack.
void RDB_Node::DestroyChildren() {
  RDB_Node* node = this;
  while (node != this || node->FirstChild() != nullptr) {
    RDB_Node* const child = node->FirstChild();
    node = child != nullptr ? child : DestroyAndLeave(node);
  }
}

RDB_Node* RDB_Node::DestroyAndLeave(RDB_Node* leaf) {
  RDB_Node* const parentOfLeaf = leaf->parent;
  parentOfLeaf->children->first = leaf->next;
  DeleteNode(leaf);
  return parentOfLeaf;
}

// The part of a lookup that may have to go back.
#pragma once

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "RDB_Node.h"

// A search from nodes with wildcards among their children, depth first, with the open choices in a list since
// keys may be deeper than any stack. A wildcard can be reached with the same rest of the key on many ways, so
// the pairs that were tried are remembered: none is tried twice.
class RDB_WildcardSearch {
 public:
  RDB_WildcardSearch(const RDB_KeyPart* parts, std::size_t count) : parts_(parts), count_(count) {}

  // The node that answers the parts from `at` on below `node`, or null. Throws std::bad_alloc.
  const RDB_Node* Search(const RDB_Node& node, std::size_t at);

 private:
  // A node, and the first part that has to be matched below it.
  struct Step {
    const RDB_Node* node;
    std::size_t at;
  };
  enum class Choice { kExact, kStars, kDots };
  // What is left to be tried below a node that has wildcards.
  struct Fork {
    Step step;
    Choice choice;
    const RDB_Node* nextNode;  // in the bucket of the choice
    std::size_t dotsAt;        // first part behind those that the dots stand for
  };

  const RDB_Node* Follow(Step step);
  Step NextStep(Fork& fork);
  Step NextExact(Fork& fork);
  Step NextStar(Fork& fork);
  Step NextDots(Fork& fork);
  bool IsFirstTry(const void* what, std::size_t at);

  const RDB_KeyPart* parts_;
  std::size_t count_;
  std::vector<Fork> forks_;
  std::unordered_map<const void*, std::vector<bool>>
      tried_;  // for a node or its children, a bit for each part
};

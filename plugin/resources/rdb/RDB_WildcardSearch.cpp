#include "RDB_WildcardSearch.h"

const RDB_Node* RDB_WildcardSearch::Search(const RDB_Node& node, std::size_t at) {
  if (const RDB_Node* const found = Follow({&node, at})) return found;
  while (!forks_.empty()) {
    const Step step = NextStep(forks_.back());
    if (step.node == nullptr) {
      // A key that ends in the dots matches whatever is left.
      const RDB_Node* const dots = forks_.back().step.node->children->dots;
      if (dots != nullptr && dots->value) return dots;
      forks_.pop_back();
    } else if (const RDB_Node* const found = Follow(step)) {
      return found;
    }
  }
  return nullptr;
}

// Goes down while there is no choice: to the answer, to a dead end, or to a new fork. Gives the answer.
const RDB_Node* RDB_WildcardSearch::Follow(Step step) {
  while (step.at < count_) {
    if (!step.node->children) return nullptr;
    if (step.node->children->HasWildcards()) {
      forks_.push_back({step, Choice::kExact, nullptr, step.at});
      return nullptr;
    }
    step = {step.node->children->Find(parts_[step.at]), step.at + 1};
    if (step.node == nullptr) return nullptr;
  }
  return step.node->value ? step.node : nullptr;
}

// Without a node when nothing is left. Ordinary nodes need no memory of what was tried: each has one parent,
// and is reached from that in one way.
RDB_WildcardSearch::Step RDB_WildcardSearch::NextStep(Fork& fork) {
  for (;;) {
    Step step{nullptr, 0};
    if (fork.choice == Choice::kExact) step = NextExact(fork);
    if (step.node == nullptr && fork.choice == Choice::kStars) step = NextStar(fork);
    if (step.node == nullptr && fork.choice == Choice::kDots) step = NextDots(fork);
    if (step.node == nullptr || step.node->slot < kRDBStar || IsFirstTry(step.node, step.at)) return step;
  }
}

RDB_WildcardSearch::Step RDB_WildcardSearch::NextExact(Fork& fork) {
  const RDB_Children& children = *fork.step.node->children;
  fork.choice = Choice::kStars;
  fork.nextNode = children.stars;
  return {children.Find(parts_[fork.step.at]), fork.step.at + 1};
}

RDB_WildcardSearch::Step RDB_WildcardSearch::NextStar(Fork& fork) {
  const RDB_Node* const node = fork.nextNode;
  if (node != nullptr) {
    fork.nextNode = RDB_NextInBucket(*node);
  } else {
    fork.choice = Choice::kDots;
  }
  return {node, fork.step.at + 1};
}

// All dots with the rest as it stands, then with each shorter one that has a component left.
RDB_WildcardSearch::Step RDB_WildcardSearch::NextDots(Fork& fork) {
  const RDB_Children& children = *fork.step.node->children;
  if (fork.nextNode == nullptr) {
    // Once these dots were tried with a rest, they were tried with every shorter one.
    if (children.dots == nullptr || fork.dotsAt == count_ || !IsFirstTry(&children, fork.dotsAt))
      return {nullptr, 0};
    fork.nextNode = children.dots;
    ++fork.dotsAt;
  }
  const RDB_Node* const node = fork.nextNode;
  fork.nextNode = RDB_NextInBucket(*node);
  return {node, fork.dotsAt - 1};
}

bool RDB_WildcardSearch::IsFirstTry(const void* what, std::size_t at) {
  std::vector<bool>& tried = tried_[what];
  if (tried.empty()) tried.resize(count_ + 1);
  if (tried[at]) return false;
  tried[at] = true;
  return true;
}

#include "Contexts.h"

#include <algorithm>

namespace host {
namespace {

// Goes on from one host to the next, so that what outlives a host names nothing in its successor.
ObjectId nextId() {
  static ObjectId last = 0;
  return last == ~ObjectId{0} ? 0 : ++last;
}

}  // namespace

AIAppContextHandle Contexts::push(const std::string& pluginName) {
  const ObjectId id = nextId();
  if (id == 0) return nullptr;
  const std::string name = nameOfStep ? nameOfStep() : std::string();
  stack_.push_back({id, std::make_unique<UndoStep>(documents_, name.empty() ? pluginName : name)});
  return makeHandle<AIAppContextHandle>(HandleKind::AppContext, 0, id);
}

bool Contexts::pop(AIAppContextHandle context) {
  const ObjectId id = idOfHandle(context, HandleKind::AppContext, 0);
  const auto found =
      std::find_if(stack_.begin(), stack_.end(), [&](const Context& pushed) { return pushed.id == id; });
  if (found == stack_.end()) return false;
  popTo(static_cast<std::size_t>(found - stack_.begin()));
  return true;
}

void Contexts::popTo(std::size_t depth) {
  if (stack_.size() <= depth) return;
  while (stack_.size() > depth) stack_.pop_back();
  if (stack_.empty() && onEnd) onEnd();
}

}  // namespace host

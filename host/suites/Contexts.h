// What plug-ins do outside messages: the contexts that they have pushed and not popped.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Handles.h"
#include "UndoStep.h"

using AIAppContextHandle = struct AIAppContextRecord*;

namespace host {

// From its push to its end a context is an undo step, or part of the one under way.
class Contexts {
 public:
  explicit Contexts(const Documents& documents) : documents_(documents) {}
  Contexts(const Contexts&) = delete;
  Contexts& operator=(const Contexts&) = delete;
  ~Contexts() { popTo(0); }

  // Null when no more ids are to be had.
  AIAppContextHandle push(const std::string& pluginName);
  // Ends the context and those within it. False for one that is not there.
  bool pop(AIAppContextHandle context);

  std::size_t depth() const { return stack_.size(); }
  // Ends what was pushed since there were so many.
  void popTo(std::size_t depth);

  // Names the step of a context by what the user is doing; an empty name, or unset: it is called after the
  // plug-in.
  std::function<std::string()> nameOfStep;
  // Called after the last context has ended.
  std::function<void()> onEnd;

 private:
  struct Context {
    ObjectId id;
    std::unique_ptr<UndoStep> step;
  };

  const Documents& documents_;
  std::vector<Context> stack_;  // the innermost last
};

}  // namespace host

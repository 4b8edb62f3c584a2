// The tools of the palette and the one that is selected.
#pragma once

#include <functional>

#include "Registrations.h"

namespace host {

class ToolTable {
 public:
  ToolRecord& add(ToolRecord tool);  // group 0 makes a group of its own
  const Registry<ToolRecord>& all() const { return tools_; }

  const ToolRecord* selected() const { return tools_.find(selected_); }  // null if none is
  // The tool that a group shows in the palette: the first of it, or the one selected last. Null for a
  // group that does not exist.
  const ToolRecord* visibleMember(int group) const;

  // False for a handle that names no tool.
  bool select(AIToolHandle tool);
  // The same, but the group goes on showing the member it shows.
  bool restore(AIToolHandle tool);

  // Called after another tool was selected; either may be null.
  std::function<void(const ToolRecord* previous, const ToolRecord* now)> onChange;

 private:
  bool change(AIToolHandle tool);

  Registry<ToolRecord> tools_;
  std::vector<AIToolHandle> visible_;  // by group - 1
  AIToolHandle selected_ = nullptr;
};

}  // namespace host

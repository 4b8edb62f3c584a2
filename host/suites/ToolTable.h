// The tools of the palette and the one that is selected.
#pragma once

#include <functional>
#include <vector>

#include "Registrations.h"
#include "ToolInfo.h"

namespace host {

class ToolTable {
 public:
  // Group 0 makes a group of its own, tool set 0 a set of its own. Not when the table is full.
  ToolRecord& add(ToolRecord tool);
  bool isFull() const;  // no numbers are left
  const Registry<ToolRecord>& all() const { return tools_; }
  // By the place in the order of registration, from 0; null if there is no such tool.
  const ToolRecord* byNumber(AIToolType number) const;

  const ToolRecord* selected() const { return tools_.find(selected_); }  // null if none is
  // The tool that a group shows in the palette: the first of it, or the one selected last. Null for a
  // group that does not exist.
  const ToolRecord* visibleMember(int group) const;

  // False for a handle that names no tool.
  bool select(AIToolHandle tool);
  // The same, but the group goes on showing the member it shows.
  bool restore(AIToolHandle tool);

  bool setInfoVariables(AIToolHandle tool, std::vector<AIToolInfoVariable> variables);
  // Of the values told last, those that the selected tool shows.
  ToolInfo info() const;
  void showInfo(const ToolInfo& info);

  // Takes out the tools of plug-ins. If one of them is selected, none is afterwards, without a call.
  void forgetPlugins();

  // Called after another tool was selected; either may be null.
  std::function<void(const ToolRecord* previous, const ToolRecord* now)> onChange;
  // Called after a tool told values for the info display.
  std::function<void()> onInfo;

 private:
  bool change(AIToolHandle tool);

  Registry<ToolRecord> tools_;
  std::vector<AIToolHandle> visible_;  // by group - 1
  int toolsets_ = 0;
  AIToolHandle selected_ = nullptr;
  ToolInfo info_;
};

}  // namespace host

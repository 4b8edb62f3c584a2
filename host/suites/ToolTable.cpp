#include "ToolTable.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace host {

ToolRecord& ToolTable::add(ToolRecord tool) {
  if (tool.group <= 0) tool.group = static_cast<int>(visible_.size()) + 1;
  const auto groups = std::max(visible_.size(), static_cast<std::size_t>(tool.group));
  visible_.resize(groups, nullptr);
  if (tool.toolset <= 0) tool.toolset = toolsets_ + 1;
  toolsets_ = std::max(toolsets_, tool.toolset);
  ToolRecord& added = tools_.add(std::move(tool));
  AIToolHandle& member = visible_[static_cast<std::size_t>(added.group) - 1];
  if (member == nullptr) member = added.handle;
  return added;
}

bool ToolTable::isFull() const {
  return tools_.size() > static_cast<std::size_t>(std::numeric_limits<AIToolType>::max());
}

const ToolRecord* ToolTable::byNumber(AIToolType number) const {
  const bool exists = number >= 0 && static_cast<std::size_t>(number) < tools_.size();
  return exists ? &tools_[static_cast<std::size_t>(number)] : nullptr;
}

const ToolRecord* ToolTable::visibleMember(int group) const {
  if (group < 1 || static_cast<std::size_t>(group) > visible_.size()) return nullptr;
  return tools_.find(visible_[static_cast<std::size_t>(group) - 1]);
}

bool ToolTable::select(AIToolHandle tool) {
  const ToolRecord* record = tools_.find(tool);
  if (record == nullptr) return false;
  visible_[static_cast<std::size_t>(record->group) - 1] = tool;
  return change(tool);
}

bool ToolTable::restore(AIToolHandle tool) {
  return tools_.find(tool) != nullptr && change(tool);
}

bool ToolTable::setInfoVariables(AIToolHandle tool, std::vector<AIToolInfoVariable> variables) {
  ToolRecord* record = tools_.find(tool);
  if (record != nullptr) record->infoVariables = std::move(variables);
  return record != nullptr;
}

ToolInfo ToolTable::info() const {
  ToolInfo shown;
  if (selected() == nullptr) return shown;
  for (const AIToolInfoVariable variable : selected()->infoVariables) {
    if (const auto told = info_.find(variable); told != info_.end()) shown.insert(*told);
  }
  return shown;
}

void ToolTable::showInfo(const ToolInfo& info) {
  for (const auto& [variable, value] : info) info_[variable] = value;
  if (onInfo) onInfo();
}

void ToolTable::forgetPlugins() {
  const auto isOwn = [](const ToolRecord& tool) { return tool.plugin == nullptr; };
  tools_.removeIf([&](const ToolRecord& tool) { return !isOwn(tool); });
  if (selected() == nullptr) selected_ = nullptr;
  toolsets_ = 0;
  int groups = 0;
  for (const ToolRecord& tool : tools_) {
    groups = std::max(groups, tool.group);
    toolsets_ = std::max(toolsets_, tool.toolset);
  }
  visible_.resize(static_cast<std::size_t>(groups));
  for (const ToolRecord& tool : tools_) {
    AIToolHandle& member = visible_[static_cast<std::size_t>(tool.group) - 1];
    if (tools_.find(member) == nullptr) member = tool.handle;
  }
}

bool ToolTable::change(AIToolHandle tool) {
  const AIToolHandle before = std::exchange(selected_, tool);
  if (before != tool && onChange) onChange(tools_.find(before), tools_.find(tool));
  return true;
}

}  // namespace host

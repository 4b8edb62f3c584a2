#include "AITool.h"

#include <cmath>

#include "Entry.h"
#include "Lookup.h"
#include "Suites.h"
#include "Utf8.h"

namespace host {
namespace {

// False for a string that the host does not have. One without a host's object is empty.
bool readText(Host& host, const ai::UnicodeString& string, std::string& text) {
  if (string.existing() == nullptr) return true;
  const HostString* found = findString(host, string.existing());
  if (found != nullptr) text = found->text();
  return found != nullptr;
}

// False for a number that is no tool's. `field` is the group or the tool set, both numbers from 1 on.
bool shareWith(const ToolTable& tools, AIToolType number, int ToolRecord::*field, ToolRecord& tool) {
  if (number == kNoTool) return true;
  const ToolRecord* other = tools.byNumber(number);
  if (other != nullptr) tool.*field = other->*field;
  return other != nullptr;
}

AIErr addTool(Host& host, SPPluginRef plugin, const char* name, const AIAddToolData* data,
              std::int32_t options, AIToolHandle* tool) {
  if (host.plugins().find(plugin) == nullptr || name == nullptr || data == nullptr || tool == nullptr) {
    return kBadParameterErr;
  }
  ToolRecord record;
  record.plugin = plugin;
  record.name = validUtf8(name);
  record.lightIcon = data->normalIconResID;
  record.darkIcon = data->darkIconResID;
  record.tracksCursor = (options & kToolWantsToTrackCursorOption) != 0;
  const bool sound = readText(host, data->title, record.title) &&
                     readText(host, data->tooltip, record.tooltip) &&
                     shareWith(host.tools(), data->sameGroupAs, &ToolRecord::group, record) &&
                     shareWith(host.tools(), data->sameToolsetAs, &ToolRecord::toolset, record);
  if (!sound) return kBadParameterErr;
  if (host.tools().isFull()) return kOutOfMemoryErr;
  *tool = host.tools().add(std::move(record)).handle;
  return kNoErr;
}

AIErr getToolNumberFromName(Host& host, const char* name, AIToolType* number) {
  if (name == nullptr || number == nullptr) return kBadParameterErr;
  const auto& tools = host.tools().all();
  for (std::size_t i = 0; i < tools.size(); ++i) {
    if (tools[i].name != name) continue;
    *number = static_cast<AIToolType>(i);
    return kNoErr;
  }
  return kNoSuchItemErr;
}

AIErr getSelectedTool(Host& host, AIToolHandle* tool) {
  if (tool == nullptr) return kBadParameterErr;
  const ToolRecord* selected = host.tools().selected();
  *tool = selected == nullptr ? nullptr : selected->handle;
  return kNoErr;
}

AIErr setSelectedTool(Host& host, AIToolHandle tool) {
  return host.tools().select(tool) ? kNoErr : kBadParameterErr;
}

AIErr restoreSelectedTool(Host& host, AIToolHandle tool) {
  return host.tools().restore(tool) ? kNoErr : kBadParameterErr;
}

AIErr setToolInfoVars(Host& host, AIToolHandle tool, const AIToolInfoVariable* variables) {
  auto known = readInfoVariables(variables);
  return known && host.tools().setInfoVariables(tool, *std::move(known)) ? kNoErr : kBadParameterErr;
}

AIErr setToolInfoVarValues(Host& host, const AIToolInfoVariable* variables, const AIReal* const* values) {
  const auto known = readInfoVariables(variables);
  if (!known || values == nullptr) return kBadParameterErr;
  ToolInfo info;
  for (std::size_t i = 0; i < known->size(); ++i) {
    if (values[i] == nullptr || !std::isfinite(*values[i])) return kBadParameterErr;
    info[(*known)[i]] = *values[i];
  }
  host.tools().showInfo(info);
  return kNoErr;
}

}  // namespace

SuiteOffer toolSuite() {
  SuiteEntries entries(kAIToolSuite);
  static const AIToolSuite table{
      entries.add<addTool>("AddTool"),
      entries.add<getToolNumberFromName>("GetToolNumberFromName"),
      entries.add<getSelectedTool>("GetSelectedTool"),
      entries.add<setSelectedTool>("SetSelectedTool"),
      entries.add<restoreSelectedTool>("RestoreSelectedTool"),
      entries.add<setToolInfoVars>("SetToolInfoVars"),
      entries.add<setToolInfoVarValues>("SetToolInfoVarValues"),
  };
  return entries.offer(kAIToolSuiteVersion, &table);
}

}  // namespace host

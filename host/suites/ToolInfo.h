// What tools show in the info display.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "AITool.h"

namespace host {

// Values by variable; those of lengths and places are in document units.
using ToolInfo = std::map<AIToolInfoVariable, AIReal>;

// The variables of a list as a plug-in passes it in. Nullopt if it is null, has no end within
// kMaxInfoVariables or holds an unknown variable.
std::optional<std::vector<AIToolInfoVariable>> readInfoVariables(const AIToolInfoVariable* list);

}  // namespace host

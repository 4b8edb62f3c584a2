#include "ToolInfo.h"

namespace host {

std::optional<std::vector<AIToolInfoVariable>> readInfoVariables(const AIToolInfoVariable* list) {
  if (list == nullptr) return std::nullopt;
  std::vector<AIToolInfoVariable> variables;
  for (int i = 0; i <= kMaxInfoVariables; ++i) {
    const AIToolInfoVariable variable = list[i];
    if (variable == kInfoEnd) return variables;
    if (variable != kInfoDocX && variable != kInfoDocY) return std::nullopt;
    variables.push_back(variable);
  }
  return std::nullopt;
}

}  // namespace host

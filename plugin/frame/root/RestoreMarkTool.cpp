#include "RestoreMarkTool.h"

#include "AIPreference.h"
#include "CutOption.h"
#include "CutPlugin.h"
#include "CutTool.h"

namespace Vandrell::Corvane {

std::int32_t StoredMarkTool() {
  std::int32_t index = 0;
  sAIPreference->GetIntegerPreference(kRegmarkPreferencePrefix, kSelectedToolPreference, &index);
  return index;
}

void RestoreMarkTool(void* plugin) {
  if (plugin == nullptr) return;
  AIToolHandle selected = nullptr;
  sAITool->GetSelectedTool(&selected);
  const CutTool* const markTool = static_cast<const CutPlugin*>(plugin)->GetTool(StoredMarkTool());
  if (markTool == nullptr) return;
  sAITool->SetSelectedTool(markTool->tool);
  if (selected != nullptr) sAITool->RestoreSelectedTool(selected);
}

}  // namespace Vandrell::Corvane

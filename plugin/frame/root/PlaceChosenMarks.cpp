#include "PlaceChosenMarks.h"

#include "AIPreference.h"
#include "CutOption.h"
#include "CutOptionDialog.h"
#include "CutPlugin.h"
#include "CutTool.h"
#include "PlaceRegmarks.h"
#include "ShowCriticalMessage.h"
#include "TextKey.h"

namespace Vandrell::Corvane {
namespace {

constexpr char kLastNotPlacedPreference[] = "LastNotPlaced";

void StoreInteger(const char* key, std::int32_t value) {
  sAIPreference->PutIntegerPreference(kRegmarkPreferencePrefix, key, value);
}

// Stores what the user accepts.
bool AskFor(CutOption& option) {
  option.LoadPreferences();
  CutOptionDialog dialog(&option);
  if (dialog.Run(TextKey("brevia Register Marks"), true) != CutOptionDialog::kAccepted) return false;
  option.SavePreferences();
  return true;
}

void ChooseTool(CutTool* tool, const CutOption& option, TableHead tableHead) {
  if (tool != nullptr) {
    tool->SetColors(option.fillColor, option.strokeColor);
    if (tableHead == TableHead::kIsRefreshed) tool->RefreshAnnotator();
    sAITool->SetSelectedTool(tool->tool);
  }
  StoreInteger(kSelectedToolPreference, static_cast<std::int32_t>(option.shape));
}

AIErr Place(const CutOption& option) {
  std::int32_t failures = 0;
  const AIErr error = PlaceRegmarks(option, failures);
  StoreInteger(kLastNotPlacedPreference, failures);
  if (failures >= 1) {
    qRVADM::ShowCriticalMessage(
        "Not all regmarks are placed because not enough space in the current artboard.");
  }
  return error;
}

}  // namespace

AIErr PlaceChosenMarks(const CutPlugin& plugin, TableHead tableHead) {
  CutOption option;
  if (!AskFor(option)) return kNoErr;
  ChooseTool(plugin.GetTool(option.shape), option, tableHead);
  return Place(option);
}

}  // namespace Vandrell::Corvane

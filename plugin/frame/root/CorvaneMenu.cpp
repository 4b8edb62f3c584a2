#include "CorvaneMenu.h"

#include "AIPreference.h"
#include "AITool.h"
#include "Alerts.h"
#include "CutOption.h"
#include "CutPlugin.h"
#include "CutTool.h"
#include "PlaceRegmarks.h"
#include "TextKey.h"

namespace Vandrell::Corvane {
namespace {

constexpr char kLastNotPlacedPreference[] = "LastNotPlaced";

void StoreInteger(const char* key, std::int32_t value) {
  sAIPreference->PutIntegerPreference(kRegmarkPreferencePrefix, key, value);
}

}  // namespace

CorvaneMenu::CorvaneMenu(CutPlugin* owner, const char* group)
    : HMX_AIMenu(owner, group, TextKey("Add brevia Register Marks..."), kMenuItemNoOptions),
      cutPlugin(*owner) {
  sAIMenu->UpdateMenuItemAutomatically(item, kAutoEnableMenuItemAction, -1, 0, -1, 0, kIfOpenDocument, 0);
}

AIErr CorvaneMenu::Go(const AIMenuMessage& /*message*/) {
  CutOption option;
  option.LoadPreferences();
  option.ResetColors();
  option.SavePreferences();
  SelectMarkTool(option);
  StoreInteger(kSelectedToolPreference, static_cast<std::int32_t>(option.shape));
  std::int32_t failures = 0;
  PlaceRegmarks(option, failures);
  StoreInteger(kLastNotPlacedPreference, failures);
  if (failures >= 1) {
    ErrorAlert("Not all regmarks are placed because not enough space in the current artboard.");
  }
  return kNoErr;
}

void CorvaneMenu::SelectMarkTool(const CutOption& option) const {
  CutTool* const tool = cutPlugin.GetTool(option.shape);
  if (tool == nullptr) return;
  tool->SetColors(option.fillColor, option.strokeColor);
  tool->RefreshAnnotator();
  sAITool->SetSelectedTool(tool->tool);
}

}  // namespace Vandrell::Corvane

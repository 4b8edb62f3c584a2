#include "PlaceChosenMarks.h"

#include "AIPreference.h"
#include "CutOption.h"
#include "CutTool.h"
#include "PlaceRegmarks.h"
#include "ShowCriticalMessage.h"

namespace Vandrell::Corvane {
namespace {

constexpr char kLastNotPlacedPreference[] = "LastNotPlaced";

void StoreInteger(const char* key, std::int32_t value) {
  sAIPreference->PutIntegerPreference(kRegmarkPreferencePrefix, key, value);
}

}  // namespace

AIErr PlaceChosenMarks(const CutOption& option, const CutTool* tool) {
  if (tool != nullptr) sAITool->SetSelectedTool(tool->tool);
  StoreInteger(kSelectedToolPreference, static_cast<std::int32_t>(option.shape));
  std::int32_t failures = 0;
  const AIErr error = PlaceRegmarks(option, failures);
  StoreInteger(kLastNotPlacedPreference, failures);
  if (failures >= 1) {
    qRVADM::ShowCriticalMessage(
        "Not all regmarks are placed because not enough space in the current artboard.");
  }
  return error;
}

}  // namespace Vandrell::Corvane

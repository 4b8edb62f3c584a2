#include "SelectedLineTypesUpdateNotifier.h"

#include "CutLayerDialog.h"
#include "CutPlugin.h"

namespace Vandrell::Corvane {

SelectedLineTypesUpdateNotifier::SelectedLineTypesUpdateNotifier(CutPlugin* owner)
    : HMX_AINotifier(owner, "AI Art Properties Changed Notifier", kAIArtPropertiesChangedNotifier),
      cutPlugin(*owner) {}

AIErr SelectedLineTypesUpdateNotifier::Notify(const AINotifierMessage& /*message*/) {
  CutLayerDialog* const palette = cutPlugin.GetLayerDialog();
  if (palette != nullptr && palette->IsShown()) palette->SyncWithSelection();
  return kNoErr;
}

}  // namespace Vandrell::Corvane

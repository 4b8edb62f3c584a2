#include "CorvanePreferencesMenu.h"

#include "CutLayerDialog.h"
#include "CutPlugin.h"
#include "CutPreferencesDialog.h"
#include "TextKey.h"

namespace Vandrell::Corvane {

CorvanePreferencesMenu::CorvanePreferencesMenu(CutPlugin* owner, const char* group)
    : HMX_AIMenu(owner, group, TextKey("corvane Preferences..."), kMenuItemNoOptions), cutPlugin(*owner) {}

AIErr CorvanePreferencesMenu::Go(const AIMenuMessage& /*message*/) {
  const CutPreferencesDialog dialog;
  CutLayerDialog* const palette = cutPlugin.GetLayerDialog();
  if (palette == nullptr || dialog.IsCancelled()) return kNoErr;
  palette->InitItems();
  if (palette->IsShown()) palette->SyncWithSelection();
  return kNoErr;
}

}  // namespace Vandrell::Corvane

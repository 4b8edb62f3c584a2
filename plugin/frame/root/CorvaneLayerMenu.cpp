#include "CorvaneLayerMenu.h"

#include "CutLayerDialog.h"
#include "CutPlugin.h"
#include "TextKey.h"

namespace Vandrell::Corvane {

CorvaneLayerMenu::CorvaneLayerMenu(CutPlugin* owner, const char* group)
    : HMX_AIMenu(owner, group, TextKey("Create Line Type Layers"), kMenuItemWantsUpdateOption),
      cutPlugin(*owner) {}

AIErr CorvaneLayerMenu::Go(const AIMenuMessage& /*message*/) {
  CutLayerDialog* const palette = cutPlugin.GetLayerDialog();
  if (palette != nullptr) palette->Show(!palette->IsShown());
  return kNoErr;
}

AIErr CorvaneLayerMenu::Update(const AIMenuMessage& /*message*/) {
  const CutLayerDialog* const palette = cutPlugin.GetLayerDialog();
  return sAIMenu->CheckItem(item, palette != nullptr && palette->IsShown() ? 1 : 0);
}

}  // namespace Vandrell::Corvane

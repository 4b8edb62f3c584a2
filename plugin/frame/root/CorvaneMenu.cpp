#include "CorvaneMenu.h"

#include "CutOption.h"
#include "CutPlugin.h"
#include "CutTool.h"
#include "PlaceChosenMarks.h"
#include "TextKey.h"

namespace Vandrell::Corvane {

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
  CutTool* const tool = cutPlugin.GetTool(option.shape);
  if (tool != nullptr) {
    tool->SetColors(option.fillColor, option.strokeColor);
    tool->RefreshAnnotator();
  }
  PlaceChosenMarks(option, tool);
  return kNoErr;
}

}  // namespace Vandrell::Corvane

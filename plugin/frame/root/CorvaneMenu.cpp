#include "CorvaneMenu.h"

#include "CutPlugin.h"
#include "PlaceChosenMarks.h"
#include "TextKey.h"

namespace Vandrell::Corvane {

CorvaneMenu::CorvaneMenu(CutPlugin* owner, const char* group)
    : HMX_AIMenu(owner, group, TextKey("Add brevia Register Marks..."), kMenuItemNoOptions),
      cutPlugin(*owner) {
  sAIMenu->UpdateMenuItemAutomatically(item, kAutoEnableMenuItemAction, -1, 0, -1, 0, kIfOpenDocument, 0);
}

AIErr CorvaneMenu::Go(const AIMenuMessage& /*message*/) {
  PlaceChosenMarks(cutPlugin, TableHead::kIsRefreshed);
  return kNoErr;
}

}  // namespace Vandrell::Corvane

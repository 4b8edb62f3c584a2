#include "CorvaneLegalNoticesMenu.h"

#include "CutPlugin.h"
#include "LegalNoticesDialog.h"
#include "TextKey.h"

namespace Vandrell::Corvane {

CorvaneLegalNoticesMenu::CorvaneLegalNoticesMenu(CutPlugin* owner, const char* group)
    : HMX_AIMenu(owner, group, TextKey("Legal Notices..."), kMenuItemNoOptions), cutPlugin(*owner) {}

AIErr CorvaneLegalNoticesMenu::Go(const AIMenuMessage& /*message*/) {
  LegalNoticesDialog dialog(cutPlugin);
  dialog.Run(TextKey("Legal Notices"), true);
  return kNoErr;
}

}  // namespace Vandrell::Corvane

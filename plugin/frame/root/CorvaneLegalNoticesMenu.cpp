#include "CorvaneLegalNoticesMenu.h"

#include "TextKey.h"

namespace Vandrell::Corvane {

CorvaneLegalNoticesMenu::CorvaneLegalNoticesMenu(HMX_AIPlugin* owner, const char* group)
    : HMX_AIMenu(owner, group, TextKey("Legal Notices..."), kMenuItemNoOptions) {}

}  // namespace Vandrell::Corvane

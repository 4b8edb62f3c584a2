#include "CorvaneLegalNoticesMenu.h"

namespace Vandrell::Corvane {

CorvaneLegalNoticesMenu::CorvaneLegalNoticesMenu(HMX_AIPlugin* owner, const char* group)
    : HMX_AIMenu(owner, group, "Legal Notices...", kMenuItemNoOptions) {}

}  // namespace Vandrell::Corvane

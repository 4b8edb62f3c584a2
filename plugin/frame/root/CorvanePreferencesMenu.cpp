#include "CorvanePreferencesMenu.h"

namespace Vandrell::Corvane {

CorvanePreferencesMenu::CorvanePreferencesMenu(HMX_AIPlugin* owner, const char* group)
    : HMX_AIMenu(owner, group, "corvane Preferences...", kMenuItemNoOptions) {}

}  // namespace Vandrell::Corvane

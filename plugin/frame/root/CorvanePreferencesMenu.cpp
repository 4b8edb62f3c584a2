#include "CorvanePreferencesMenu.h"

#include "TextKey.h"

namespace Vandrell::Corvane {

CorvanePreferencesMenu::CorvanePreferencesMenu(HMX_AIPlugin* owner, const char* group)
    : HMX_AIMenu(owner, group, TextKey("corvane Preferences..."), kMenuItemNoOptions) {}

}  // namespace Vandrell::Corvane

// "corvane Preferences..."
#pragma once

#include "HMX_AIMenu.h"

namespace Vandrell::Corvane {

class CorvanePreferencesMenu : public HMX_AIMenu {
 public:
  CorvanePreferencesMenu(HMX_AIPlugin* owner, const char* group);
};

}  // namespace Vandrell::Corvane

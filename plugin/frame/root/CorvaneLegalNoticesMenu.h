// "Legal Notices..."
#pragma once

#include "HMX_AIMenu.h"

namespace Vandrell::Corvane {

class CorvaneLegalNoticesMenu : public HMX_AIMenu {
 public:
  CorvaneLegalNoticesMenu(HMX_AIPlugin* owner, const char* group);
};

}  // namespace Vandrell::Corvane

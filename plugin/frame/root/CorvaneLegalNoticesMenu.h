// "Legal Notices...": shows the notices.
#pragma once

#include "HMX_AIMenu.h"

namespace Vandrell::Corvane {

class CutPlugin;

class CorvaneLegalNoticesMenu : public HMX_AIMenu {
 public:
  CorvaneLegalNoticesMenu(CutPlugin* owner, const char* group);

  AIErr Go(const AIMenuMessage& message) override;

 private:
  const CutPlugin& cutPlugin;
};

}  // namespace Vandrell::Corvane

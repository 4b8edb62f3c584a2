// "Add brevia Register Marks...": the marks of the current document anew, as the user wants them.
#pragma once

#include "HMX_AIMenu.h"

namespace Vandrell::Corvane {

class CutPlugin;

class CorvaneMenu : public HMX_AIMenu {
 public:
  CorvaneMenu(CutPlugin* owner, const char* group);  // enabled while a document is open

  // Always 0: what is amiss is told to the user.
  AIErr Go(const AIMenuMessage& message) override;

 private:
  const CutPlugin& cutPlugin;
};

}  // namespace Vandrell::Corvane

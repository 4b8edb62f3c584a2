// "corvane Preferences..."
#pragma once

#include "HMX_AIMenu.h"

namespace Vandrell::Corvane {

class CutPlugin;

class CorvanePreferencesMenu : public HMX_AIMenu {
 public:
  CorvanePreferencesMenu(CutPlugin* owner, const char* group);

  // Asks which line types the palette lists; it follows at once.
  AIErr Go(const AIMenuMessage& message) override;

 private:
  const CutPlugin& cutPlugin;
};

}  // namespace Vandrell::Corvane

// "Create Line Type Layers": shows and hides the palette.
#pragma once

#include "HMX_AIMenu.h"

namespace Vandrell::Corvane {

class CutPlugin;

class CorvaneLayerMenu : public HMX_AIMenu {
 public:
  CorvaneLayerMenu(CutPlugin* owner, const char* group);

  AIErr Go(const AIMenuMessage& message) override;
  AIErr Update(const AIMenuMessage& message) override;  // checked while the palette is shown

 private:
  const CutPlugin& cutPlugin;
};

}  // namespace Vandrell::Corvane

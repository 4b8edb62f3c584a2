// Selected art has changed, or other art is selected.
#pragma once

#include "HMX_AINotifier.h"

namespace Vandrell::Corvane {

class CutPlugin;

class SelectedLineTypesUpdateNotifier : public HMX_AINotifier {
 public:
  explicit SelectedLineTypesUpdateNotifier(CutPlugin* owner);

  AIErr Notify(const AINotifierMessage& message) override;  // the palette follows

 private:
  const CutPlugin& cutPlugin;
};

}  // namespace Vandrell::Corvane

// The brightness of the application's interface has changed.
#pragma once

#include "HMX_AINotifier.h"

namespace Vandrell::Corvane {

class UIColorSchemeNotifier : public HMX_AINotifier {
 public:
  explicit UIColorSchemeNotifier(HMX_AIPlugin* owner);

  AIErr Notify(const AINotifierMessage& message) override;
};

}  // namespace Vandrell::Corvane

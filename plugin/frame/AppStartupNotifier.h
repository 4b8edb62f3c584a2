// The application has come up.
#pragma once

#include "HMX_AINotifier.h"

namespace Vandrell::AIPluginWrappers {

class AppStartupNotifier : public HMX_AINotifier {
 public:
  explicit AppStartupNotifier(HMX_AIPlugin* owner);

  AIErr Notify(const AINotifierMessage& message) override;
};

}  // namespace Vandrell::AIPluginWrappers

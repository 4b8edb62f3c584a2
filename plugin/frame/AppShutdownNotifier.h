// The application is about to end.
#pragma once

#include "HMX_AINotifier.h"

namespace Vandrell::AIPluginWrappers {

class AppShutdownNotifier : public HMX_AINotifier {
 public:
  explicit AppShutdownNotifier(HMX_AIPlugin* owner);

  AIErr Notify(const AINotifierMessage& message) override;
};

}  // namespace Vandrell::AIPluginWrappers

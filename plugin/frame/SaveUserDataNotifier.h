// The application stores what its user changed.
#pragma once

#include "HMX_AINotifier.h"

namespace Vandrell::AIPluginWrappers {

class SaveUserDataNotifier : public HMX_AINotifier {
 public:
  explicit SaveUserDataNotifier(HMX_AIPlugin* owner);

  AIErr Notify(const AINotifierMessage& message) override;
};

}  // namespace Vandrell::AIPluginWrappers

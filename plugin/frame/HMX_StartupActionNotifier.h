// Runs the plug-in's startup actions once, when the application has come up wholly, and then is gone.
#pragma once

#include "HMX_AINotifier.h"

class HMX_StartupActionNotifier : public HMX_AINotifier {
 public:
  explicit HMX_StartupActionNotifier(HMX_AIPlugin* owner);

  AIErr Notify(const AINotifierMessage& message) override;
};

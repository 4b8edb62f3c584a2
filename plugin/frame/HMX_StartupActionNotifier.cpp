#include "HMX_StartupActionNotifier.h"

#include "HMX_AIPlugin.h"

HMX_StartupActionNotifier::HMX_StartupActionNotifier(HMX_AIPlugin* owner)
    : HMX_AINotifier(owner, "HMX_StartupActionNotifier", kAIOwlAppInitDispatchedNotifier) {}

AIErr HMX_StartupActionNotifier::Notify(const AINotifierMessage& /*message*/) {
  if (sAINotifier != nullptr) sAINotifier->SetNotifierActive(notifier, 0);
  plugin->RunStartupActions();
  delete this;  // leaves the table, which owned it
  return kNoErr;
}

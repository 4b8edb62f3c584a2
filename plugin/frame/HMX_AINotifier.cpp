#include "HMX_AINotifier.h"

#include "HMX_AIPlugin.h"

HMX_AINotifier::HMX_AINotifier(HMX_AIPlugin* owner, const char* name, const char* type) : plugin(owner) {
  plugin->RequestSuite(kAINotifierSuite);
  if (sAINotifier == nullptr) return;
  if (sAINotifier->AddNotifier(plugin->GetPluginRef(), name, type, &notifier) != kNoErr) notifier = nullptr;
}

HMX_AINotifier::~HMX_AINotifier() {
  plugin->RemoveNotifier(this);
}

AIErr HMX_AINotifier::Notify(const AINotifierMessage& /*message*/) {
  return kNoErr;
}

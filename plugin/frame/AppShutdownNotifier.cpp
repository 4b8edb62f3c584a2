#include "AppShutdownNotifier.h"

#include "HMX_AIPlugin.h"

namespace Vandrell::AIPluginWrappers {

AppShutdownNotifier::AppShutdownNotifier(HMX_AIPlugin* owner)
    : HMX_AINotifier(owner, "AIPlugWrap Plugin Shutdown Notifier", kAIApplicationShutdownNotifier) {}

AIErr AppShutdownNotifier::Notify(const AINotifierMessage& /*message*/) {
  plugin->EndApplication();
  return kNoErr;
}

}  // namespace Vandrell::AIPluginWrappers

#include "AppStartupNotifier.h"

#include "HMX_AIPlugin.h"

namespace Vandrell::AIPluginWrappers {

AppStartupNotifier::AppStartupNotifier(HMX_AIPlugin* owner)
    : HMX_AINotifier(owner, "AIPlugWrap Plugin Startup Notifier", kAIApplicationStartedNotifier) {}

AIErr AppStartupNotifier::Notify(const AINotifierMessage& /*message*/) {
  plugin->OnAppStartup();
  return kNoErr;
}

}  // namespace Vandrell::AIPluginWrappers

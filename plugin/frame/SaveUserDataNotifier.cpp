#include "SaveUserDataNotifier.h"

#include "HMX_AIPlugin.h"

namespace Vandrell::AIPluginWrappers {

SaveUserDataNotifier::SaveUserDataNotifier(HMX_AIPlugin* owner)
    : HMX_AINotifier(owner, "AIPlugWrap Plugin Save Data Notifier", kAISaveUserDataNotifier) {}

AIErr SaveUserDataNotifier::Notify(const AINotifierMessage& /*message*/) {
  plugin->OnSaveUserData();
  return kNoErr;
}

}  // namespace Vandrell::AIPluginWrappers

#include "UIColorSchemeNotifier.h"

#include "QtManager.h"

namespace Vandrell::Corvane {

UIColorSchemeNotifier::UIColorSchemeNotifier(HMX_AIPlugin* owner)
    : HMX_AINotifier(owner, "UI Color Scheme Notifier", kAIUIBrightnessChangedNotifier) {}

AIErr UIColorSchemeNotifier::Notify(const AINotifierMessage& /*message*/) {
  RVADMQtManager::QtManager::UpdateUIColorScheme();
  return kNoErr;
}

}  // namespace Vandrell::Corvane

#include "UIColorSchemeNotifier.h"

namespace Vandrell::Corvane {

UIColorSchemeNotifier::UIColorSchemeNotifier(HMX_AIPlugin* owner)
    : HMX_AINotifier(owner, "UI Color Scheme Notifier", kAIUIBrightnessChangedNotifier) {}

}  // namespace Vandrell::Corvane

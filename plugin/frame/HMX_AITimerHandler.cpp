#include "HMX_AITimerHandler.h"

#include "FindByHandle.h"
#include "HostText.h"

AIErr HMX_AITimerHandler::HandleMessage(const char* caller, const char* selector, const void* message) {
  if (!IsEqual(caller, kAITimerCaller) || count < 1) return kNoErr;
  const auto& record = *static_cast<const AITimerMessage*>(message);
  HMX_AITimer* const found =
      FindByHandle(slots.begin(), slots.begin() + count, &HMX_AITimer::timer, record.timer);
  if (found != nullptr) found->Timer(record, selector);
  return kNoErr;
}

#include "HMX_AINotifierHandler.h"

#include <algorithm>

#include "FindByHandle.h"
#include "FrameErrors.h"
#include "HostText.h"

HMX_AINotifierHandler::HMX_AINotifierHandler() {
  notifiers.reserve(16);
}

HMX_AINotifierHandler::~HMX_AINotifierHandler() {
  while (!notifiers.empty()) {
    const std::unique_ptr<HMX_AINotifier> first(notifiers.front().get());
    Remove(first.get());  // all its entries, before its destructor looks for them
  }
}

AIErr HMX_AINotifierHandler::Add(HMX_AINotifier* notifier) {
  notifiers.emplace_back(notifier);
  return kNoErr;
}

AIErr HMX_AINotifierHandler::Remove(HMX_AINotifier* notifier) {
  bool found = false;
  for (std::unique_ptr<HMX_AINotifier>& entry : notifiers) {
    if (entry.get() != notifier) continue;
    (void)entry.release();
    found = true;
  }
  if (!found) return kNotifierNotFoundErr;
  notifiers.erase(std::remove(notifiers.begin(), notifiers.end(), nullptr), notifiers.end());
  return kNoErr;
}

AIErr HMX_AINotifierHandler::HandleMessage(const char* caller, const void* message) {
  if (!IsEqual(caller, kAINotifierCaller)) return kNoErr;
  const auto& record = *static_cast<const AINotifierMessage*>(message);
  HMX_AINotifier* const found =
      FindByHandle(notifiers.begin(), notifiers.end(), &HMX_AINotifier::notifier, record.notifier);
  if (found != nullptr) found->Notify(record);
  return kNoErr;
}

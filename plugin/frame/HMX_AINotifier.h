// A notification of the host.
#pragma once

#include "AINotifier.h"

class HMX_AIPlugin;

class HMX_AINotifier {
 public:
  // Registers `name` for events of `type` with the host, which keeps both; a refusal leaves `notifier`
  // null and is not reported. The notifier enters no table. `owner` is not owned.
  HMX_AINotifier(HMX_AIPlugin* owner, const char* name, const char* type);
  HMX_AINotifier(const HMX_AINotifier&) = delete;
  HMX_AINotifier& operator=(const HMX_AINotifier&) = delete;
  // Leaves its table. The registration stays with the host, whose messages then find nobody.
  virtual ~HMX_AINotifier();

  // The event happened. Nobody sees the result. The object may destroy itself.
  virtual AIErr Notify(const AINotifierMessage& message);

  AINotifierHandle notifier = nullptr;  // null: no message ever arrives
  HMX_AIPlugin* plugin;
};

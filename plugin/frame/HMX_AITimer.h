// A timer of the host.
#pragma once

#include "AITimer.h"

class HMX_AITimer {
 public:
  HMX_AITimer() = default;
  HMX_AITimer(const HMX_AITimer&) = delete;
  HMX_AITimer& operator=(const HMX_AITimer&) = delete;
  virtual ~HMX_AITimer() = default;

  virtual AIErr Timer(const AITimerMessage& message, const char* selector) = 0;  // nobody sees the result

  AITimerHandle timer = nullptr;  // null: no message ever arrives
};

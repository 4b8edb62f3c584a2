// The plug-in's timers.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "HMX_AITimer.h"

class HMX_AITimerHandler {
 public:
  HMX_AITimerHandler() = default;
  HMX_AITimerHandler(const HMX_AITimerHandler&) = delete;
  HMX_AITimerHandler& operator=(const HMX_AITimerHandler&) = delete;
  virtual ~HMX_AITimerHandler() = default;

  // Hands a message of the timer caller to the timer it is for. Always 0.
  AIErr HandleMessage(const char* caller, const char* selector, const void* message);

  std::int32_t count = 0;  // slots in use, from the first on
  std::array<std::unique_ptr<HMX_AITimer>, 100> slots;
};

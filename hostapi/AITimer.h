// Timer messages.
#pragma once

#include "AITypes.h"

constexpr char kAITimerCaller[] = "AI Timer";

struct AITimerMessage {
  SPMessageData d;
  AITimerHandle timer;
};

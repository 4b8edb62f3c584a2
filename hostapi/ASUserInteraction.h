// May the user be asked anything?
#pragma once

#include "AITypes.h"

constexpr char kASUserInteractionSuite[] = "AS User Interaction Suite";
constexpr std::int32_t kASUserInteractionSuiteVersion = 4;

struct ASUserInteractionSuite {
  AIBoolean (*InteractWithUser)();  // 0: show nothing
};

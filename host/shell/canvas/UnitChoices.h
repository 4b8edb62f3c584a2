// What rulers can count in.
#pragma once

#include <vector>

#include "AIDocument.h"

namespace host {

struct UnitChoice {
  AIRulerUnits units;
  const char* name;  // for people
  const char* mark;  // as behind a number
  double points;     // in one of them
};

// Those that a user can choose, in the order of a menu.
const std::vector<UnitChoice>& unitChoices();
// Points for units that nobody can choose.
const UnitChoice& unitChoice(AIRulerUnits units);

}  // namespace host

// The units that rulers count in.
#pragma once

#include <string>
#include <vector>

#include "AIDocument.h"

namespace host {

struct RulerUnit {
  AIRulerUnits units;
  const char* name;  // for people
  const char* sign;  // such as "mm"
  double points;     // in one unit
  int decimals;      // that a place in a drawing is told with
};

// Those that a user can choose, in the order of a menu.
const std::vector<RulerUnit>& rulerUnits();
// Points for units that nobody can choose.
const RulerUnit& rulerUnit(AIRulerUnits units);

// Such as "12.50 mm". Numbers too long to be shown in full, which no drawing has, are a dash.
std::string lengthText(double points, AIRulerUnits units);

// The number alone.
std::string lengthNumber(double points, AIRulerUnits units);

}  // namespace host

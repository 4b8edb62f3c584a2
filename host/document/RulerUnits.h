// The units that rulers count in.
#pragma once

#include <string>

#include "AIDocument.h"

namespace host {

struct RulerUnit {
  const char* sign;  // such as "mm"
  double points;     // in one unit
  int decimals;      // that a place in a drawing is told with
};

// Points for units that are unknown.
RulerUnit rulerUnit(AIRulerUnits units);

// Such as "12.50 mm". Numbers too long to be shown in full, which no drawing has, are a dash.
std::string lengthText(double points, AIRulerUnits units);

// The number alone.
std::string lengthNumber(double points, AIRulerUnits units);

}  // namespace host

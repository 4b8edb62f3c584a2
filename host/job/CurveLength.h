// How far a tool travels along an outline.
#pragma once

#include "Art.h"
#include "Cubic.h"

namespace host {

// In document units, to 0.01 % or better, cusps and all.
double lengthOf(const Cubic& curve);

// Of all its curves, a closed path's to its start.
double lengthOf(const PathGeometry& path);

}  // namespace host

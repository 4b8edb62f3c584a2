// Changes to a drawing in ways that a seed decides, for what has to hold whatever was done.
#pragma once

#include <random>

#include "SvgDrawing.h"

namespace host {

// Adds, moves, restyles or deletes art, groups or layers, as a step of its own.
void changeAnything(SvgDrawing& drawing, std::mt19937_64& random);
// Selects art that can be edited, or takes it out of the selection.
void selectAnything(SvgDrawing& drawing, std::mt19937_64& random);

}  // namespace host

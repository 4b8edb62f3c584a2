// Art that is painted as a line type.
#pragma once

#include <string>

#include "AIPathStyle.h"

namespace Vandrell::Corvane {

// What every line type is drawn with: no fill, and a stroke of this width, in document units, that overprints
// in a spot colour of the line type's name.
AIReal LineTypeStrokeWidth();

// Makes a style that of a line type whose swatch has the paint `color`; what belongs to no line type keeps
// its value.
void ApplyLineTypeStroke(const AIColor& color, AIPathStyle& style);

// True, with the line type's name in UTF-8, if the art looks as ApplyLineTypeStroke makes it, in a spot
// colour defined in RGB. Neither its type nor its layer matters.
bool LineTypeNameOfArt(AIArtHandle art, std::string& name);

}  // namespace Vandrell::Corvane

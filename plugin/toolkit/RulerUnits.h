// What the host's rulers count in, by the host's numbers (AIRulerUnits).
#pragma once

#include <cstdint>

#include "ADMUnits.h"
#include "AITypes.h"

namespace qRVADM {

// Of the current document; without one, of the user's preferences; points when neither tells.
std::int16_t GetRulerUnits();
int RulerDecimals(std::int16_t rulerUnit);
// kBadParameterErr, with `unit` as it was, for a number the host has no ruler for.
AIErr RulerToADMUnits(std::int16_t rulerUnit, ADMUnits* unit);

}  // namespace qRVADM

// The Few to Many scale of automatic marks.
//
// It follows the size of the art: one more on the scale for every 2 inches of its longer side, but never
// less than 2 to 10. Each call measures the art of the current document anew.
#pragma once

#include <cstdint>

namespace Vandrell::Corvane {

constexpr std::int64_t kFewestAutoMarks = 2;

std::int64_t MaxAutoMarkCount();  // 12 when there is no art to measure

// `fraction` runs from 0 (Few) to 1 (Many); others go on in the same line. A count survives both ways.
std::int64_t AutoMarkCountFromSlider(double fraction);
double SliderFromAutoMarkCount(std::int64_t count);

}  // namespace Vandrell::Corvane

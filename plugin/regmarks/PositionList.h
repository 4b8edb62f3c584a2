// Centres of marks in document coordinates, in the order in which the marks enter their layer.
#pragma once

#include <vector>

#include "AITypes.h"

namespace Vandrell::Corvane {

using PositionList = std::vector<AIRealPoint>;

}  // namespace Vandrell::Corvane

// Changes as a person makes them.
#pragma once

#include <cstdint>

#include "SvgDrawing.h"

// Makes some changes, each a step that can be undone. The seed alone decides which.
void ChangeDrawing(host::SvgDrawing& drawing, std::uint64_t seed);

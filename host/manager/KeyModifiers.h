// Where GetCurrentKeyModifiers gets its answer from.
#pragma once

#include <cstdint>

namespace host {

// Asked at every call; returns a sum of the bits in Platform.h. Null, as at the start, stands for no
// keyboard: nothing is held down.
using KeyModifierSource = std::uint32_t (*)();

void setKeyModifierSource(KeyModifierSource source);

}  // namespace host

// The suites of the host that the gallery and the toolkit under it call.
#pragma once

#include "SPBasic.h"

namespace gallery {

// Fills the process-wide suite pointers. The code of the first suite that the host refuses; nothing is held
// then.
SPErr AcquireSuites(const SPBasicSuite* basic);
// Gives back what is held and clears the pointers, but for the way to the host.
void ReleaseSuites();

}  // namespace gallery

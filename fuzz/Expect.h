// Ends the program if a property does not hold, in every build.
#pragma once

#include <cstdio>
#include <cstdlib>

inline void Expect(bool holds, const char* property) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", property);
  std::abort();
}

// Where the host's value classes throw and a code is promised.
#pragma once

#include <new>

#include "AIError.h"

namespace Vandrell::Corvane {

// The code that `body` returns, or that of the ai::Error it ends with. kOutOfMemoryErr if memory ran out.
template <typename Body>
AIErr ReturnedCode(const Body& body) {
  try {
    return body();
  } catch (const ai::Error& error) {
    return error.code;
  } catch (const std::bad_alloc&) {
    return kOutOfMemoryErr;
  }
}

}  // namespace Vandrell::Corvane

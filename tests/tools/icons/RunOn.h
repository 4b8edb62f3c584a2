// The program on a folder with a list of icons and its sources.
#pragma once

#include <sstream>
#include <string>

#include "Run.h"
#include "ScratchFolder.h"

namespace icons {

struct Outcome {
  int code;
  std::string errors;
};

inline Outcome runOn(const ScratchFolder& scratch) {
  std::ostringstream errors;
  const int code = run({scratch.path / "icons.txt", scratch.path / "out"}, errors);
  return {code, errors.str()};
}

}  // namespace icons

// What lies too near to marks for a camera to tell them from it.
#pragma once

#include <vector>

#include "PreflightJob.h"

namespace host {

// One mark with what is seen around it.
struct MarkZone {
  JobMark mark;
  double radius;                // document units, from the centre
  std::vector<ArtId> entering;  // from the bottom up, without repeats one after the other
  std::vector<ArtId> covering;  // those whose ink covers all of it
};

// In the order of the marks. Art that paper-white ink hides in the whole zone does not count.
std::vector<MarkZone> zonesOf(const PreflightJob& job);

}  // namespace host

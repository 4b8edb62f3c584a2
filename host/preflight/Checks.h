// The checks of a preflight, each in a file of its own. All append what they find.
#pragma once

#include "PreflightJob.h"

namespace host {

using Findings = std::vector<Finding>;

// What is alike and goes into one finding.
struct Tally {
  std::vector<ArtId> art;
  std::size_t count = 0;  // of what was found in it
  AIRealPoint first{};    // where the first is

  void add(ArtId id, AIRealPoint where) {
    if (art.empty() || art.back() != id) art.push_back(id);
    if (count++ == 0) first = where;
  }
};

void checkOpenPaths(const PreflightJob& job, Findings& findings);
void checkDoubledLines(const PreflightJob& job, Findings& findings);
void checkReach(const PreflightJob& job, Findings& findings);
void checkNames(const PreflightJob& job, Findings& findings);
void checkLayers(const PreflightJob& job, Findings& findings);
void checkMarkFrame(const PreflightJob& job, Findings& findings);
void checkClearZones(const PreflightJob& job, Findings& findings);
void checkSymmetry(const PreflightJob& job, Findings& findings);
void checkTinySegments(const PreflightJob& job, Findings& findings);
void checkLiveText(const PreflightJob& job, Findings& findings);

}  // namespace host

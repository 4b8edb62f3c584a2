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

// A name as it stands in a sentence; a long one ends in dots.
std::string inQuotes(const std::string& name);
// Where that is, such as ", \u201CLid\u201D at (12.3, 45.6) mm", and of several where the first is. Not for
// an empty one.
std::string where(const PreflightJob& job, const Tally& tally);

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

#include "Preflight.h"

#include "Checks.h"

namespace host {

const char* keyOf(FindingKind kind) {
  switch (kind) {
    case FindingKind::OpenPath:
      return "open-path";
    case FindingKind::DoubledLine:
      return "doubled-line";
    case FindingKind::OutOfReach:
      return "out-of-reach";
    case FindingKind::NearMissName:
      return "near-miss-name";
    case FindingKind::WrongLayer:
      return "wrong-layer";
    case FindingKind::OutsideMarks:
      return "outside-marks";
    case FindingKind::InClearZone:
      return "in-clear-zone";
    case FindingKind::SymmetricalMarks:
      return "symmetrical-marks";
    case FindingKind::TinySegment:
      return "tiny-segment";
    case FindingKind::LiveText:
      return "live-text";
  }
  return "";
}

std::vector<Finding> preflight(const Document& document) {
  const PreflightJob job(document);
  Findings findings;
  for (const auto check :
       {checkOpenPaths, checkDoubledLines, checkReach, checkNames, checkLayers, checkMarkFrame,
        checkClearZones, checkSymmetry, checkTinySegments, checkLiveText}) {
    check(job, findings);
  }
  return findings;
}

}  // namespace host

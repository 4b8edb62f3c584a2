#include "Checks.h"
#include "Cubic.h"
#include "Vector.h"

namespace host {
namespace {

// Millimetres. Shorter moves make a table stop and shake, and no knife shows them.
constexpr double kTiny = 0.1;
// Anchors this close are one and the same.
constexpr double kNothing = 1e-4;

// At least as long as the curve, and hardly longer when that is tiny.
double lengthAlong(const Cubic& curve) {
  return length(curve.p1 - curve.p0) + length(curve.p2 - curve.p1) + length(curve.p3 - curve.p2);
}

void checkType(const PreflightJob& job, const PreflightJob::Type& type, Findings& findings) {
  const double tiny = job.unitsOf(kTiny), nothing = job.unitsOf(kNothing);
  Tally shorter, empty;
  for (const PreflightJob::Line& line : type.lines) {
    for (std::uint32_t i = line.firstPath; i < line.endPath; ++i) {
      const PathGeometry& path = *job.drawn.paths[i];
      if (path.segments.size() == 1) empty.add(line.art, path.segments.front().p);
      for (std::size_t k = 0; path.segments.size() > 1 && k < curveCount(path); ++k) {
        const Cubic curve = curveAt(path, k);
        const double size = lengthAlong(curve);
        if (size < tiny) (size <= nothing ? empty : shorter).add(line.art, curve.p0);
      }
    }
  }
  const std::string in = " in " + type.is.name;
  if (shorter.count > 0) {
    findings.push_back({FindingKind::TinySegment,
                        counted(shorter.count, "segment") + in + verb(shorter.count, " is", " are") +
                            " shorter than " + job.length(tiny) + where(job, shorter) +
                            ": too short for a tool to follow",
                        shorter.art, type.is.name});
  }
  if (empty.count > 0) {
    findings.push_back({FindingKind::TinySegment,
                        counted(empty.count, "segment") + in + verb(empty.count, " has", " have") +
                            " no length" + where(job, empty) +
                            ": a tool stops there, or goes down for nothing",
                        empty.art, type.is.name});
  }
}

}  // namespace

void checkTinySegments(const PreflightJob& job, Findings& findings) {
  for (const PreflightJob::Type& type : job.types) checkType(job, type, findings);
}

}  // namespace host

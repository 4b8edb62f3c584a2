#include "Checks.h"
#include "LineOverlaps.h"

namespace host {
namespace {

// Millimetres. A table repeats a line to about a tenth, so what is closer goes into the same cut.
constexpr double kTogether = 0.1;
// Lines that cross at a narrow angle, or touch in passing, share less than this.
constexpr double kLeastOverlap = 2;

void checkType(const PreflightJob& job, const PreflightJob::Type& type, Findings& findings) {
  std::vector<const PathGeometry*> paths;
  std::vector<ArtId> owners;
  for (const PreflightJob::Line& line : type.lines) {
    for (std::uint32_t i = line.firstPath; i < line.endPath; ++i) {
      paths.push_back(job.drawn.paths[i]);
      owners.push_back(line.art);
    }
  }
  Tally tally;
  double firstLength = 0;
  for (const LineOverlap& overlap :
       findOverlaps(paths, {job.unitsOf(kTogether), job.unitsOf(kLeastOverlap)})) {
    if (tally.count == 0) firstLength = overlap.length;
    tally.add(owners[overlap.path], overlap.start);
  }
  if (tally.count == 0) return;
  findings.push_back({FindingKind::DoubledLine,
                      counted(tally.count, "path") + " in " + type.is.name +
                          verb(tally.count, " runs where a line is already", " lie over each other") +
                          where(job, tally) + " for " + job.length(firstLength) +
                          ": a tool would go there twice",
                      tally.art, type.is.name});
}

}  // namespace

void checkDoubledLines(const PreflightJob& job, Findings& findings) {
  for (const PreflightJob::Type& type : job.types) checkType(job, type, findings);
}

}  // namespace host

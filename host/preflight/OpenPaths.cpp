#include <cmath>

#include "Bounds.h"
#include "Checks.h"
#include "Geometry.h"
#include "ProcessingSteps.h"
#include "Vector.h"

namespace host {
namespace {

// Millimetres. Ends closer than this are one point to any table; up to the other, somebody meant to close it.
constexpr double kTouching = 0.01;
constexpr double kNearlyClosed = 2;
constexpr double kAtEdge = 0.5;  // from the edge of a sheet
// Beside its gap, a shape that was meant to be closed is at least so many times as wide or high.
constexpr double kShapeToGap = 3;

class OpenPaths {
 public:
  OpenPaths(const PreflightJob& job, const PreflightJob::Type& type) : job_(job), type_(type) {
    for (const PreflightJob::Line& line : type.lines) {
      for (std::uint32_t i = line.firstPath; i < line.endPath; ++i) add(line.art, *job.drawn.paths[i]);
    }
  }

  void report(Findings& findings) const {
    const std::string in = " in " + type_.is.name;
    if (nearly_.count > 0) {
      findings.push_back({FindingKind::OpenPath,
                          counted(nearly_.count, "path") + in + verb(nearly_.count, " is", " are") +
                              " nearly closed" + where(job_, nearly_) + ": a gap of " +
                              job_.length(firstGap_) + " keeps the part attached",
                          nearly_.art, type_.is.name});
    }
    if (open_.count > 0) {
      findings.push_back({FindingKind::OpenPath,
                          counted(open_.count, "path") + in + verb(open_.count, " is", " are") + " open" +
                              where(job_, open_) + ": only a closed line cuts a part free",
                          open_.art, type_.is.name});
    }
  }

 private:
  void add(ArtId art, const PathGeometry& path) {
    if (path.closed || path.segments.size() < 2) return;
    const double gap = length(path.segments.back().p - path.segments.front().p);
    if (gap <= job_.unitsOf(kTouching)) return;
    const AIRealRect box = pathBounds(path);
    const bool isShape = std::hypot(box.right - box.left, box.top - box.bottom) >= kShapeToGap * gap;
    if (gap <= job_.unitsOf(kNearlyClosed) && isShape) {
      if (nearly_.count == 0) firstGap_ = gap;
      nearly_.add(art, path.segments.back().p);
    } else if (isCutting(type_.step) && !runsBetweenEdges(path, box)) {
      open_.add(art, path.segments.back().p);
    }
  }

  // The edges of the sheet close it.
  bool runsBetweenEdges(const PathGeometry& path, const AIRealRect& box) const {
    const std::size_t sheet = job_.sheetAt({(box.left + box.right) / 2, (box.top + box.bottom) / 2});
    if (sheet == PreflightJob::kNone) return false;
    const AIRealRect inner =
        inflated(job_.document.state().artboards[sheet].position, -job_.unitsOf(kAtEdge));
    return !contains(inner, path.segments.front().p) && !contains(inner, path.segments.back().p);
  }

  const PreflightJob& job_;
  const PreflightJob::Type& type_;
  Tally nearly_, open_;
  double firstGap_ = 0;  // of those that are nearly closed
};

}  // namespace

void checkOpenPaths(const PreflightJob& job, Findings& findings) {
  for (const PreflightJob::Type& type : job.types) {
    // What is not known may well cut.
    if (type.step.empty() || isCutting(type.step)) OpenPaths(job, type).report(findings);
  }
}

}  // namespace host

#include <algorithm>
#include <map>

#include "Bounds.h"
#include "Checks.h"
#include "Geometry.h"
#include "Vector.h"

namespace host {
namespace {

// Millimetres. What a camera corrects is only as good between the marks; outside of them some tables drop
// lines without a word.
constexpr double kInside = 1;
constexpr double kFinest = 0.02;           // millimetres, of flattened curves
constexpr std::size_t kLeastForFrame = 3;  // two marks say how a sheet lies, and have no inside

// Anticlockwise, without points that lie on an edge. A. M. Andrew, "Another efficient algorithm for convex
// hulls in two dimensions", 1979.
std::vector<AIRealPoint> hullOf(std::vector<AIRealPoint> points) {
  std::sort(points.begin(), points.end(),
            [](AIRealPoint a, AIRealPoint b) { return a.x < b.x || (a.x == b.x && a.y < b.y); });
  std::vector<AIRealPoint> hull;
  const auto addChain = [&hull](auto first, auto last) {
    const std::size_t base = hull.size();
    for (auto point = first; point != last; ++point) {
      while (hull.size() >= base + 2 &&
             cross(hull.back() - hull[hull.size() - 2], *point - hull.back()) <= 0) {
        hull.pop_back();
      }
      hull.push_back(*point);
    }
    hull.pop_back();
  };
  addChain(points.begin(), points.end());
  addChain(points.rbegin(), points.rend());
  return hull;
}

class Frame {
 public:
  Frame(const std::vector<AIRealPoint>& marks, double inside) : hull_(hullOf(marks)), inside_(inside) {}

  bool holds(AIRealPoint point) const {
    for (std::size_t i = 0; i < hull_.size(); ++i) {
      const AIRealPoint from = hull_[i], to = hull_[(i + 1) % hull_.size()];
      if (cross(unit(to - from), point - from) < inside_) return false;
    }
    return hull_.size() > 2;
  }

  bool holds(const AIRealRect& box) const {
    return holds(AIRealPoint{box.left, box.top}) && holds(AIRealPoint{box.right, box.top}) &&
           holds(AIRealPoint{box.right, box.bottom}) && holds(AIRealPoint{box.left, box.bottom});
  }

  bool isOnALine() const { return hull_.size() < 3; }

 private:
  std::vector<AIRealPoint> hull_;
  double inside_;
};

enum class Place { Inside, OutsideFrame, SheetWithoutMarks, OffSheet };

class FrameCheck {
 public:
  explicit FrameCheck(const PreflightJob& job) : job_(job), finest_(job.unitsOf(kFinest)) {
    for (const JobMark& mark : job.marks) marks_[job.sheetAt(mark.centre)].push_back(mark.centre);
    for (const auto& [sheet, marks] : marks_) {
      if (marks.size() >= kLeastForFrame) frames_.emplace(sheet, Frame(marks, job.unitsOf(kInside)));
    }
  }

  void check(const PreflightJob::Type& type, Findings& findings) const {
    std::map<Place, Tally> tallies;
    for (const PreflightJob::Line& line : type.lines) {
      for (std::uint32_t i = line.firstPath; i < line.endPath; ++i) {
        AIRealPoint where{};
        const Place place = placeOf(*job_.drawn.paths[i], where);
        if (place != Place::Inside) tallies[place].add(line.art, where);
      }
    }
    for (const auto& [place, tally] : tallies) {
      findings.push_back({FindingKind::OutsideMarks,
                          counted(tally.count, "path") + " in " + type.is.name + " " + sentence(place, tally),
                          tally.art, type.is.name});
    }
  }

 private:
  // `where` is one of its points that lies there.
  Place placeOf(const PathGeometry& path, AIRealPoint& where) const {
    if (path.segments.empty()) return Place::Inside;
    const AIRealRect box = pathBounds(path);
    where = path.segments.front().p;
    const std::size_t sheet = job_.sheetAt({(box.left + box.right) / 2, (box.top + box.bottom) / 2});
    if (sheet == PreflightJob::kNone) return Place::OffSheet;
    if (marks_.count(sheet) == 0) return Place::SheetWithoutMarks;
    const auto frame = frames_.find(sheet);
    if (frame == frames_.end() || frame->second.holds(box)) return Place::Inside;
    for (const AIRealPoint point : flatten(path, finest_, false)) {
      if (frame->second.holds(point)) continue;
      where = point;
      return Place::OutsideFrame;
    }
    return Place::Inside;
  }

  std::string sentence(Place place, const Tally& tally) const {
    const std::string first = where(job_, tally);
    switch (place) {
      case Place::SheetWithoutMarks:
        return verb(tally.count, "lies", "lie") + std::string(" on an artboard without marks") + first +
               ": a camera finds nothing there to go by";
      case Place::OffSheet:
        return verb(tally.count, "lies", "lie") + std::string(" off every artboard") + first +
               ": not on any page that leaves for the table";
      default:
        return verb(tally.count, "leaves", "leave") + std::string(" the frame of the marks, or ") +
               verb(tally.count, "comes", "come") + " within " + job_.length(job_.unitsOf(kInside)) +
               " of it" + first + ": outside, no mark corrects a cut";
    }
  }

  const PreflightJob& job_;
  double finest_;
  std::map<std::size_t, std::vector<AIRealPoint>> marks_;  // by artboard
  std::map<std::size_t, Frame> frames_;
};

}  // namespace

void checkMarkFrame(const PreflightJob& job, Findings& findings) {
  if (job.marks.empty()) return;
  const FrameCheck check(job);
  for (const PreflightJob::Type& type : job.types) check.check(type, findings);
}

}  // namespace host

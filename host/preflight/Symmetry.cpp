#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "Checks.h"
#include "Vector.h"

namespace host {
namespace {

// Marks this close, in sizes of a mark, are the same to a camera that looks for one where it should be.
constexpr double kSameInSizes = 2;

// Finds out whether any of some points is near.
class NearPoints {
 public:
  NearPoints(const std::vector<JobMark>& marks, double reach) : reach_(reach) {
    for (const JobMark& mark : marks) cells_[cellOf(mark.centre)].push_back(mark.centre);
  }

  bool any(AIRealPoint point) const {
    const Cell middle = cellOf(point);
    for (const double x : {-1.0, 0.0, 1.0}) {
      for (const double y : {-1.0, 0.0, 1.0}) {
        const auto cell = cells_.find({middle.first + x, middle.second + y});
        const bool found =
            cell != cells_.end() && std::any_of(cell->second.begin(), cell->second.end(),
                                                [&](AIRealPoint p) { return length(p - point) < reach_; });
        if (found) return true;
      }
    }
    return false;
  }

 private:
  using Cell = std::pair<double, double>;
  Cell cellOf(AIRealPoint point) const {
    return {std::floor(point.x / reach_), std::floor(point.y / reach_)};
  }

  double reach_;
  std::map<Cell, std::vector<AIRealPoint>> cells_;
};

bool looksTheSameTurned(const std::vector<JobMark>& marks) {
  AIRealPoint middle{};
  double size = 0;
  for (const JobMark& mark : marks) {
    middle = middle + mark.centre * (1 / static_cast<double>(marks.size()));
    size = std::max({size, mark.box.right - mark.box.left, mark.box.top - mark.box.bottom});
  }
  if (!(size > 0)) return false;
  const NearPoints near(marks, kSameInSizes * size);
  return std::all_of(marks.begin(), marks.end(),
                     [&](const JobMark& mark) { return near.any(middle * 2 - mark.centre); });
}

// Only where there are several.
std::string ofSheet(const PreflightJob& job, std::size_t sheet) {
  const auto& sheets = job.document.state().artboards;
  if (sheets.size() == 1) return {};
  const std::string& name = sheets[sheet].name;
  return " of the artboard " + (name.empty() ? std::to_string(sheet + 1) : inQuotes(name));
}

}  // namespace

void checkSymmetry(const PreflightJob& job, Findings& findings) {
  std::map<std::size_t, std::vector<JobMark>> sheets;
  for (auto mark = job.marks.rbegin(); mark != job.marks.rend(); ++mark) {
    sheets[job.sheetAt(mark->centre)].push_back(*mark);
  }
  for (const auto& [sheet, marks] : sheets) {
    if (sheet == PreflightJob::kNone || marks.size() < 2 || !looksTheSameTurned(marks)) continue;
    std::vector<ArtId> art;
    for (const JobMark& mark : marks) art.push_back(mark.art);
    findings.push_back({FindingKind::SymmetricalMarks,
                        "The " + counted(marks.size(), "mark") + ofSheet(job, sheet) +
                            " look the same when the sheet is turned by 180 degrees: it can be cut upside "
                            "down unnoticed; one more mark off the middle of an edge tells",
                        art, job.document.layer(job.markLayer)->title});
  }
}

}  // namespace host

#include <algorithm>

#include "Checks.h"
#include "MarkZones.h"

namespace host {
namespace {

// All art that some zones tell of, from the top down and none twice.
class ArtOfZones {
 public:
  explicit ArtOfZones(const PreflightJob& job) : job_(job) {}

  void add(const std::vector<ArtId>& art) { art_.insert(art_.end(), art.begin(), art.end()); }
  std::vector<ArtId> take() {
    const auto place = [this](ArtId id) { return job_.drawn.ranges[id].first; };
    std::sort(art_.begin(), art_.end(), [&](ArtId a, ArtId b) { return place(a) > place(b); });
    art_.erase(std::unique(art_.begin(), art_.end()), art_.end());
    return std::move(art_);
  }

 private:
  const PreflightJob& job_;
  std::vector<ArtId> art_;
};

}  // namespace

void checkClearZones(const PreflightJob& job, Findings& findings) {
  const std::vector<MarkZone> zones = zonesOf(job);
  ArtOfZones entering(job), covering(job);
  const MarkZone* firstEntered = nullptr;
  const MarkZone* firstCovered = nullptr;
  std::size_t entered = 0, covered = 0;
  for (const MarkZone& zone : zones) {
    entering.add(zone.entering);
    covering.add(zone.covering);
    if (!zone.entering.empty() && entered++ == 0) firstEntered = &zone;
    if (!zone.covering.empty() && covered++ == 0) firstCovered = &zone;
  }
  const auto first = [](std::size_t count) { return count == 1 ? "" : "the first "; };
  const std::string of = " of " + counted(zones.size(), "mark");
  const std::string& layer = zones.empty() ? std::string() : job.document.layer(job.markLayer)->title;
  if (entered > 0) {
    findings.push_back({FindingKind::InClearZone,
                        std::to_string(entered) + of + verb(entered, " has", " have") + " art within " +
                            job.length(firstEntered->radius) + " of the centre, " + first(entered) +
                            job.at(firstEntered->mark.centre) + ": a camera takes it for a part of the mark",
                        entering.take(), layer});
  }
  if (covered > 0) {
    findings.push_back({FindingKind::InClearZone,
                        std::to_string(covered) + of + verb(covered, " lies", " lie") + " on art, " +
                            first(covered) + job.at(firstCovered->mark.centre) +
                            ": a camera wants black on white",
                        covering.take(), layer});
  }
}

}  // namespace host

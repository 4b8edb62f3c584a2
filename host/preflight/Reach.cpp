#include <array>

#include "Bounds.h"
#include "Checks.h"

namespace host {
namespace {

enum Reason { kHiddenLayer, kHiddenArt, kLockedLayer, kLockedArt, kReasonCount };

// What art has from all it lies in.
struct State {
  bool isHidden, isLocked;
};

class ReachCheck {
 public:
  explicit ReachCheck(const PreflightJob& job) : job_(job), tallies_(job.types.size()) {
    for (const LayerId id : job.document.state().layers) addLayer(*job.document.layer(id));
  }

  void report(Findings& findings) const {
    for (std::size_t type = 0; type < tallies_.size(); ++type) {
      for (int reason = 0; reason < kReasonCount; ++reason) {
        const Tally& tally = tallies_[type][static_cast<std::size_t>(reason)];
        if (tally.count == 0) continue;
        const std::string& name = job_.types[type].is.name;
        findings.push_back({FindingKind::OutOfReach,
                            counted(tally.count, "path") + " in " + name + " " + sentence(tally, reason),
                            tally.art, name});
      }
    }
  }

 private:
  // Top down, children after their group.
  void addLayer(const Layer& layer) {
    layer_ = &layer;
    std::vector<State> states{{false, false}};  // of the groups that hold the current art
    ArtId id = job_.document.art(layer.root)->firstChild;
    while (id != 0 && id != layer.root) {
      const Art& art = *job_.document.art(id);
      const State state{states.back().isHidden || art.hidden, states.back().isLocked || art.locked};
      if (art.type == kGroupArt && art.firstChild != 0) {
        states.push_back(state);
        id = art.firstChild;
        continue;
      }
      add(id, state);
      while (id != layer.root && job_.document.art(id)->below == 0) {
        id = job_.document.art(id)->parent;
        states.pop_back();
      }
      if (id != layer.root) id = job_.document.art(id)->below;
    }
  }

  void add(ArtId id, State state) {
    const Art& art = *job_.document.art(id);
    if (art.guide) return;
    const std::size_t type = job_.typeOf(id);
    if (type == PreflightJob::kNone) return;
    const AIRealRect box = artBounds(job_.document, id, nullptr, kNoStrokeBounds);
    const auto add = [&](Reason reason) { tallies_[type][reason].add(id, {box.left, box.top}); };
    if (!layer_->visible) return add(kHiddenLayer);
    if (state.isHidden) return add(kHiddenArt);
    if (!layer_->editable) return add(kLockedLayer);
    if (state.isLocked) add(kLockedArt);
  }

  std::string sentence(const Tally& tally, int reason) const {
    const std::string be = verb(tally.count, "is", "are");
    const std::string first = where(job_, tally);
    switch (reason) {
      case kHiddenLayer:
        return be + " on a hidden layer" + first + ": nothing of it reaches the table";
      case kHiddenArt:
        return be + " hidden" + first + ": nothing of it reaches the table";
      case kLockedLayer:
        return be + " on a locked layer" + first + ": cut as before, whatever is done to line types";
      default:
        return be + " locked" + first + ": cut as before, whatever is done to line types";
    }
  }

  const PreflightJob& job_;
  const Layer* layer_ = nullptr;
  std::vector<std::array<Tally, kReasonCount>> tallies_;  // by type
};

void checkMarkLayer(const PreflightJob& job, Findings& findings) {
  if (job.marks.empty() || job.document.layer(job.markLayer)->visible) return;
  Tally marks;
  for (auto mark = job.marks.rbegin(); mark != job.marks.rend(); ++mark) marks.add(mark->art, mark->centre);
  const std::string& layer = job.document.layer(job.markLayer)->title;
  findings.push_back({FindingKind::OutOfReach,
                      "The layer " + layer + " is hidden: its " + counted(marks.count, "mark") +
                          verb(marks.count, " is", " are") + " not printed, and the camera finds none",
                      marks.art, layer});
}

}  // namespace

void checkReach(const PreflightJob& job, Findings& findings) {
  ReachCheck(job).report(findings);
  checkMarkLayer(job, findings);
}

}  // namespace host

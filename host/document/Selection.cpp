#include "Selection.h"

namespace host {

void Selection::add(ArtId id) {
  if (has(id)) return;
  changed();
  if (id >= places_.size()) places_.resize(std::size_t{id} + 1, 0);
  members_.push_back(id);
  places_[id] = static_cast<std::uint32_t>(members_.size());
}

void Selection::remove(ArtId id) {
  if (!has(id)) return;
  changed();
  const ArtId last = members_.back();
  members_[places_[id] - 1] = last;
  places_[last] = places_[id];
  places_[id] = 0;
  members_.pop_back();
}

void Selection::clear() {
  if (members_.empty()) return;
  changed();
  for (const ArtId id : members_) places_[id] = 0;
  members_.clear();
}

Selection::Snapshot Selection::snapshot() const {
  if (!snapshot_) snapshot_ = std::make_shared<const std::vector<ArtId>>(members_);
  return snapshot_;
}

void Selection::restore(const Snapshot& snapshot) {
  if (*snapshot == members_) return;
  clear();
  for (const ArtId id : *snapshot) add(id);
  snapshot_ = snapshot;
}

void Selection::changed() {
  ++revision_;
  snapshot_.reset();
}

}  // namespace host

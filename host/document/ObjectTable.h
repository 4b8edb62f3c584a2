// A table of records with ids, which keeps what an undo step needs.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "Handles.h"

namespace host {

// Before-images of the records that one step changed. Exchanging them with the table undoes the step
// and leaves what redoes it.
template <typename Record>
struct TableChanges {
  struct Saved {
    ObjectId id;
    Record record;
  };
  std::vector<Saved> saved;
};

// Records are copied as they are changed, so anything heavy in one is a shared pointer to const. A
// record has a field `alive`; a dead record stays in its place, so that undo can bring it back and no
// id is given out twice.
template <typename Record>
class ObjectTable {
 public:
  // The new record counts as dead before the open step. References to records end here.
  ObjectId add(Record record) {
    records_.push_back(std::move(record));
    stamps_.push_back(step_);
    const auto id = static_cast<ObjectId>(records_.size());
    if (recording_) {
      Record dead;
      dead.alive = false;
      changes_.saved.push_back({id, std::move(dead)});
    }
    return id;
  }

  // Null for an id that names nothing or a dead record.
  const Record* find(ObjectId id) const {
    if (id == 0 || id > records_.size() || !records_[id - 1].alive) return nullptr;
    return &records_[id - 1];
  }

  // `id` must name a record, alive or dead.
  const Record& operator[](ObjectId id) const { return records_[id - 1]; }

  // For changing; the state before is kept once a step. The reference ends with the next add().
  Record& edit(ObjectId id) {
    Record& record = records_[id - 1];
    if (recording_ && stamps_[id - 1] != step_) {
      stamps_[id - 1] = step_;
      changes_.saved.push_back({id, record});
    }
    return record;
  }

  // For what is part of no step. The reference ends with the next add().
  Record& amend(ObjectId id) { return records_[id - 1]; }

  std::size_t size() const { return records_.size(); }  // dead ones included; ids run from 1 to this
  void reserve(std::size_t count) {
    records_.reserve(count);
    stamps_.reserve(count);
  }

  void setRecording(bool recording) { recording_ = recording; }

  // Ends the open step and begins the next.
  TableChanges<Record> takeChanges() {
    ++step_;
    return std::exchange(changes_, {});
  }

  void exchange(TableChanges<Record>& changes) {
    for (auto& saved : changes.saved) std::swap(records_[saved.id - 1], saved.record);
  }

 private:
  std::vector<Record> records_;
  std::vector<std::uint32_t> stamps_;  // the step in which a record was last saved
  TableChanges<Record> changes_;
  std::uint32_t step_ = 1;
  bool recording_ = false;
};

}  // namespace host

// Lists of what plug-ins register: nothing is ever taken out, and records stay where they are.
#pragma once

#include <cstddef>
#include <deque>
#include <utility>

#include "Handles.h"

namespace host {

// A Record has a field `handle` and a constant `kKind`.
template <typename Record>
class Registry {
 public:
  using Handle = decltype(Record::handle);

  Record& add(Record record) {
    const auto id = static_cast<ObjectId>(records_.size() + 1);
    record.handle = makeHandle<Handle>(Record::kKind, 0, id);
    records_.push_back(std::move(record));
    return records_.back();
  }

  // Null for a handle that this registry did not give out.
  Record* find(Handle handle) {
    const ObjectId id = idOfHandle(handle, Record::kKind, 0);
    return id != 0 && id <= records_.size() ? &records_[id - 1] : nullptr;
  }
  const Record* find(Handle handle) const { return const_cast<Registry*>(this)->find(handle); }

  std::size_t size() const { return records_.size(); }
  Record& operator[](std::size_t index) { return records_[index]; }  // in order of registration
  const Record& operator[](std::size_t index) const { return records_[index]; }
  auto begin() { return records_.begin(); }
  auto end() { return records_.end(); }
  auto begin() const { return records_.begin(); }
  auto end() const { return records_.end(); }

 private:
  std::deque<Record> records_;
};

}  // namespace host

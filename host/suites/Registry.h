// Lists of what plug-ins register. Records stay where they are until some are taken out.
#pragma once

#include <algorithm>
#include <cstddef>
#include <deque>
#include <utility>

#include "Handles.h"

namespace host {

// A Record has a field `handle` and a constant `kKind`. No handle is given out twice.
template <typename Record>
class Registry {
 public:
  using Handle = decltype(Record::handle);

  Record& add(Record record) {
    record.handle = makeHandle<Handle>(Record::kKind, 0, ++last_);
    records_.push_back(std::move(record));
    return records_.back();
  }

  // Null for a handle that this registry did not give out, or whose record is gone.
  Record* find(Handle handle) {
    const ObjectId id = idOfHandle(handle, Record::kKind, 0);
    const auto found =
        std::lower_bound(records_.begin(), records_.end(), id,
                         [](const Record& record, ObjectId wanted) { return idOf(record) < wanted; });
    return id != 0 && found != records_.end() && idOf(*found) == id ? &*found : nullptr;
  }
  const Record* find(Handle handle) const { return const_cast<Registry*>(this)->find(handle); }

  // Takes out all records of which `isGone` is true; references to the others end as well.
  template <typename Predicate>
  void removeIf(const Predicate& isGone) {
    records_.erase(std::remove_if(records_.begin(), records_.end(), isGone), records_.end());
  }

  std::size_t size() const { return records_.size(); }
  Record& operator[](std::size_t index) { return records_[index]; }  // in order of registration
  const Record& operator[](std::size_t index) const { return records_[index]; }
  auto begin() { return records_.begin(); }
  auto end() { return records_.end(); }
  auto begin() const { return records_.begin(); }
  auto end() const { return records_.end(); }

 private:
  static ObjectId idOf(const Record& record) { return idOfHandle(record.handle, Record::kKind, 0); }

  std::deque<Record> records_;
  ObjectId last_ = 0;
};

}  // namespace host

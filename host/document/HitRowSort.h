// A counting sort by row.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace host {

// Items have a field `row`. Kept between uses, it does without new memory.
template <typename Item>
class HitRowSort {
 public:
  void clear() { items_.clear(); }
  void add(const Item& item) { items_.push_back(item); }

  // Then the items of a row lie together, in the order in which they came.
  void sort() {
    firstRow_ = endRow_ = 0;
    if (items_.empty()) return;
    const auto [least, greatest] = std::minmax_element(
        items_.begin(), items_.end(), [](const Item& a, const Item& b) { return a.row < b.row; });
    firstRow_ = least->row;
    endRow_ = greatest->row + 1;
    ends_.assign(static_cast<std::size_t>(endRow_ - firstRow_) + 1, 0);
    for (const Item& item : items_) ++ends_[indexOf(item.row) + 1];
    for (std::size_t i = 1; i < ends_.size(); ++i) ends_[i] += ends_[i - 1];
    // Each entry starts as where its row begins, and is where it ends when all items are in.
    sorted_.resize(items_.size());
    for (const Item& item : items_) sorted_[ends_[indexOf(item.row)]++] = item;
  }

  int firstRow() const { return firstRow_; }
  int endRow() const { return endRow_; }
  Item* begin(int row) {
    const std::size_t index = indexOf(row);
    return sorted_.data() + (index == 0 ? 0 : ends_[index - 1]);
  }
  Item* end(int row) { return sorted_.data() + ends_[indexOf(row)]; }

 private:
  std::size_t indexOf(int row) const { return static_cast<std::size_t>(row - firstRow_); }

  std::vector<Item> items_, sorted_;
  std::vector<std::uint32_t> ends_;
  int firstRow_ = 0, endRow_ = 0;
};

}  // namespace host

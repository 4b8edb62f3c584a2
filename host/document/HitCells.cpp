#include "HitCells.h"

#include <algorithm>

namespace host {

namespace {

// Joins what overlaps or touches, of spans that ascend by their first cell.
void appendUnion(CellSpans& joined, const CellSpan& span) {
  if (!joined.empty() && span.first <= joined.back().last + 1) {
    joined.back().last = std::max(joined.back().last, span.last);
  } else {
    joined.push_back(span);
  }
}

// `all` with the parts that lie in `full` set apart. Both are unions; `full` lies within `all`.
void split(const CellSpans& all, const CellSpans& full, CellSpans& result) {
  result.clear();
  auto inner = full.begin();
  for (const CellSpan& outer : all) {
    int next = outer.first;
    for (; inner != full.end() && inner->first <= outer.last; ++inner) {
      if (next < inner->first) result.push_back({next, inner->first - 1, false});
      result.push_back({inner->first, inner->last, true});
      next = inner->last + 1;
    }
    if (next <= outer.last) result.push_back({next, outer.last, false});
  }
}

}  // namespace

CellRows::Row CellRows::row(int index) const {
  if (index < firstRow_ || index >= endRow()) return {nullptr, nullptr};
  const auto at = static_cast<std::size_t>(index - firstRow_);
  return {spans_.data() + begins_[at], spans_.data() + begins_[at + 1]};
}

void CellRows::add(const CellSpans& spans) {
  spans_.insert(spans_.end(), spans.begin(), spans.end());
  begins_.push_back(spans_.size());
}

void intersect(CellRows::Row a, CellRows::Row b, CellSpans& result) {
  result.clear();
  while (a.first != a.last && b.first != b.last) {
    const int first = std::max(a.first->first, b.first->first);
    const int last = std::min(a.first->last, b.first->last);
    if (first <= last) result.push_back({first, last, a.first->full && b.first->full});
    (a.first->last < b.first->last ? a.first : b.first)++;
  }
}

CellRows intersect(const CellRows& a, const CellRows& b) {
  CellRows result(std::max(a.firstRow(), b.firstRow()));
  CellSpans spans;
  for (int row = result.firstRow(); row < std::min(a.endRow(), b.endRow()); ++row) {
    intersect(a.row(row), b.row(row), spans);
    result.add(spans);
  }
  return result;
}

CellRows CellCollector::take() {
  items_.sort();
  CellRows rows(items_.firstRow());
  CellSpans all, full, result;
  for (int row = items_.firstRow(); row < items_.endRow(); ++row) {
    all.clear();
    full.clear();
    const auto before = [](const Item& a, const Item& b) { return a.span.first < b.span.first; };
    std::sort(items_.begin(row), items_.end(row), before);
    for (const Item* item = items_.begin(row); item != items_.end(row); ++item) {
      appendUnion(all, item->span);
      if (item->span.full) appendUnion(full, item->span);
    }
    split(all, full, result);
    rows.add(result);
  }
  items_.clear();
  return rows;
}

}  // namespace host

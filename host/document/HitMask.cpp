#include "HitMask.h"

#include <algorithm>

#include "HitFillScan.h"
#include "HitFrame.h"
#include "HitStrokeScan.h"

namespace host {

namespace {

// The cells that a clip and all outer ones leave. Shapes come in the order of the walk, so the clips of the
// last one and those about it are all that is worth keeping.
class ClipCells {
 public:
  ClipCells(const CellFrame& frame, const HitClips& clips) : fills_(frame), clips_(clips) {}

  // Null for no clip. Good until the next call.
  const CellRows* rowsOf(std::uint32_t scope) {
    while (!kept_.empty() && !isAbout(kept_.back().scope, scope)) kept_.pop_back();
    const std::uint32_t outermost = kept_.empty() ? DrawnArt::kNone : kept_.back().scope;
    std::vector<std::uint32_t> missing;
    for (; scope != outermost; scope = clips_.outerOf(scope)) missing.push_back(scope);
    for (auto next = missing.rbegin(); next != missing.rend(); ++next) {
      CellRows own = scan(*next);
      kept_.push_back({*next, kept_.empty() ? std::move(own) : intersect(own, kept_.back().rows)});
    }
    return kept_.empty() ? nullptr : &kept_.back().rows;
  }

 private:
  struct Kept {
    std::uint32_t scope;
    CellRows rows;
  };

  // Inner scopes have greater numbers than outer ones.
  bool isAbout(std::uint32_t outer, std::uint32_t scope) const {
    while (scope != DrawnArt::kNone && scope > outer) scope = clips_.outerOf(scope);
    return scope == outer;
  }

  CellRows scan(std::uint32_t scope) {
    const HitShapes& shapes = clips_.shapesOf(scope);
    for (const HitShapes::Object& outline : shapes.objects()) {
      fills_.scan(shapes, outline, [this](int row, const CellSpans& spans) {
        for (const CellSpan& span : spans) collector_.add(row, span);
      });
    }
    return collector_.take();
  }

  HitFillScan fills_;
  CellCollector collector_;
  const HitClips& clips_;
  std::vector<Kept> kept_;  // from the outside in
};

}  // namespace

HitMask::HitMask(const HitShapes& shapes, const HitClips& clips)
    : frame_(chooseFrame(shapes, clips, kMostCells)) {
  end_ = {static_cast<double>(frame_.columns), static_cast<double>(frame_.rows)};
  stride_ = static_cast<std::size_t>(frame_.columns + 3) / 4;
  states_.resize(stride_ * static_cast<std::size_t>(frame_.rows));
  if (!states_.empty()) fillIn(shapes, clips);
}

void HitMask::fillIn(const HitShapes& shapes, const HitClips& clips) {
  ClipCells clipCells(frame_, clips);
  HitFillScan fills(frame_);
  HitStrokeScan strokes(frame_);
  CellSpans clipped;
  for (const HitShapes::Object& object : shapes.objects()) {
    requests_ |= object.paint.fillRequest | object.paint.strokeRequest;
    if (object.paint.fillRequest == 0 && object.paint.strokeRequest == 0) continue;
    const CellRows* const clip = clipCells.rowsOf(object.scope);
    const auto markRow = [&](int row, CellRows::Row spans) {
      if (clip != nullptr) {
        intersect(spans, clip->row(row), clipped);
        spans = {clipped.data(), clipped.data() + clipped.size()};
      }
      for (const CellSpan& span : spans) mark(row, span);
    };
    if (object.paint.fillRequest != 0) {
      fills.scan(shapes, object, [&](int row, const CellSpans& spans) {
        markRow(row, {spans.data(), spans.data() + spans.size()});
      });
    }
    if (object.firstPiece == object.endPiece) continue;
    const CellRows rows = strokes.scan(shapes, object);
    for (int row = rows.firstRow(); row < rows.endRow(); ++row) {
      markRow(row, rows.row(row));
    }
  }
}

void HitMask::mark(int row, const CellSpan& span) {
  const unsigned four = 0x55U * (span.full ? kFull : kMixed);
  const auto first = static_cast<std::size_t>(span.first);
  const auto last = static_cast<std::size_t>(span.last);
  const unsigned head = 0xFFU << first % 4 * 2;
  const unsigned tail = 0xFFU >> (3 - last % 4) * 2;
  std::uint8_t* const states = states_.data() + static_cast<std::size_t>(row) * stride_;
  const auto add = [states](std::size_t at, unsigned bits) {
    states[at] = static_cast<std::uint8_t>(states[at] | bits);
  };
  if (first / 4 == last / 4) {
    add(first / 4, four & head & tail);
    return;
  }
  add(first / 4, four & head);
  for (std::size_t at = first / 4 + 1; at < last / 4; ++at) add(at, four);
  add(last / 4, four & tail);
}

}  // namespace host

// Point tests against all art of a document that does not change meanwhile.
#pragma once

#include <cstdint>
#include <memory>

#include "Document.h"

namespace host {

// Answers as the document stood at construction, which builds all there is; later changes don't matter.
//
// What is drawn is hit: hidden layers and hidden art never are, nor are guides; locked ones are, and what a
// clip cuts off is not. Open filled paths are filled as if closed. Strokes have their joins and caps
// (Stroke.h); dashed ones count as solid.
//
// Curves are tested within kTolerance document units of their true course, as long as all of them together
// take no more than eight million straight pieces so, and more coarsely beyond. Memory grows with that
// number, not with the size of anything.
class HitIndex {
 public:
  static constexpr double kTolerance = 0.005;

  explicit HitIndex(const Document& document);
  ~HitIndex();
  HitIndex(HitIndex&&) noexcept;
  HitIndex& operator=(HitIndex&&) noexcept;

  // `request` is a sum of AIHitRequest.
  bool any(AIRealPoint point, std::int32_t request) const;
  // 0 if there is none. A path inside a compound path is never it, the compound path is.
  ArtId topmost(AIRealPoint point, std::int32_t request) const;
  // Is `art`, or something inside it, under the point? A path inside a compound path is where both it, taken
  // by itself, and the whole are painted.
  bool hits(ArtId art, AIRealPoint point, std::int32_t request) const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace host

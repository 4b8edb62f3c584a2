// The clips that limit painted shapes.
#pragma once

#include <cstdint>
#include <vector>

#include "DrawnArt.h"
#include "HitShapes.h"

namespace host {

// Scopes have the numbers they have in the DrawnArt; DrawnArt::kNone limits nothing.
class HitClips {
 public:
  HitClips(const DrawnArt& drawn, double tolerance);

  // Does the point lie inside the scope and all outer ones?
  bool contain(std::uint32_t scope, AIRealPoint point) const;
  AIRealRect boundsOf(std::uint32_t scope) const;  // outer ones taken into account
  std::uint32_t outerOf(std::uint32_t scope) const { return scopes_[scope].outer; }
  // The outlines of the scope alone, filled.
  const HitShapes& shapesOf(std::uint32_t scope) const { return sets_[scopes_[scope].set]; }
  std::size_t size() const { return scopes_.size(); }

 private:
  struct Scope {
    std::uint32_t set;
    std::uint32_t outer;
    AIRealRect bounds;
  };

  std::vector<HitShapes> sets_;  // one a clip, however many scopes share it
  std::vector<Scope> scopes_;
};

}  // namespace host

// What of an element's look is beyond paints, strokes and clips.
#pragma once

#include <vector>

#include "SvgDrawing.h"

namespace host {

struct SvgEffect {
  double opacity = 1;  // of the element as a whole; not inherited
  double fillOpacity = 1;
  double strokeOpacity = 1;
  bool masked = false;
  bool filtered = false;
  bool marked = false;  // has markers, if it is a shape

  bool actsOnWhole() const { return opacity < 1 || masked || filtered; }
};

// Of every element of a drawing, as the cascade has it; what stands inside <use> is not asked.
class SvgEffects {
 public:
  explicit SvgEffects(const SvgDrawing& drawing);

  const SvgEffect& of(NodeIndex element) const { return effects_[element]; }  // 0: none at all

 private:
  std::vector<SvgEffect> effects_;
};

}  // namespace host

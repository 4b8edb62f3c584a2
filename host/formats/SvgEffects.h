// What of an element's look is beyond paints, strokes and clips.
#pragma once

#include <string_view>
#include <vector>

#include "SvgDrawing.h"

namespace host {

struct SvgEffect {
  double opacity = 1;  // of the element as a whole; not inherited
  double fillOpacity = 1;
  double strokeOpacity = 1;
  bool masked = false;
  bool filtered = false;
  bool isolated = false;       // what lies in it is mixed with nothing but what else lies in it
  bool marked = false;         // has markers, if it is a shape
  bool reordered = false;      // painted in another order than fill, stroke, markers
  bool stretched = false;      // its stroke is wider in one direction than in another
  bool dashesCut = false;      // its dash pattern is longer than a document holds
  AIRealPoint axis{1, 0};      // where its x axis points in the document; of length 1
  std::string_view blendMode;  // such as "multiply"; empty: normal

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

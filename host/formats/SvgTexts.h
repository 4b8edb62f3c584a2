// Text as outlines.
#pragma once

#include <string_view>
#include <vector>

#include "SvgReading.h"

namespace host {

class SvgTexts {
 public:
  explicit SvgTexts(SvgReading& reading) : reading_(reading) {}

  // Adds the outlines of a <text> element, a part for each stretch of one look. `context` is that inside
  // the element.
  void read(NodeIndex text, const SvgContext& context, std::vector<Body::Part>& parts);

 private:
  SvgReading& reading_;
};

}  // namespace host

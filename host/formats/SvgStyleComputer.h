// From declared values to a style.
#pragma once

#include <string_view>

#include "SvgLength.h"
#include "SvgProperty.h"
#include "SvgStyle.h"

namespace host {

// Sets properties of one style, which starts as what is inherited. Lengths in em refer to its font size,
// so that goes first.
class SvgStyleComputer {
 public:
  // `viewport` is what percentages refer to; its font size is not asked.
  SvgStyleComputer(SvgStyle& style, const SvgStyle& parent, const SvgMeasure& viewport)
      : style_(style), parent_(parent), viewport_(viewport) {}

  // False if the value is not understood; the style is as before then. Properties that have no place in a
  // style are passed over.
  bool set(SvgProperty property, std::string_view value);

 private:
  bool setPaint(SvgPaintValue& paint, std::string_view value);
  bool setOpacity(double& opacity, std::string_view value);
  bool setColour(std::string_view value);
  bool setFont(SvgProperty property, std::string_view value);
  bool setStroke(SvgProperty property, std::string_view value);
  bool setDashes(std::string_view value);
  bool setVisibility(SvgProperty property, std::string_view value);
  bool setText(SvgProperty property, std::string_view value);
  bool setReference(SvgProperty property, std::string_view value);
  bool setPainting(SvgProperty property, std::string_view value);
  bool setLength(double& target, std::string_view value, double least);
  double inUserUnits(SvgLength length) const;

  SvgStyle& style_;
  const SvgStyle& parent_;
  SvgMeasure viewport_;
};

}  // namespace host

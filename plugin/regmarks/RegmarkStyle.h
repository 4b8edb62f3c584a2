// How a register mark looks, in document units (points divided by the document scale).
#pragma once

#include <cstdint>

#include "AIColor.h"

namespace Vandrell::Corvane {

class CutOption;

struct RegmarkStyle {
  std::uint32_t shape;  // a RegmarkShape
  double size;          // diameter of a round mark, length of a cross's bars
  double strokeWeight;  // stroke width of a round mark, thickness of a cross's bars
  AIColor fillColor;    // of a round mark; of the square behind a cross
  AIColor strokeColor;  // of a round mark's stroke; of a cross's bars
};

// Asks the host for the document scale.
RegmarkStyle MakeRegmarkStyle(const CutOption& option);

// Side of the square that placing keeps for one mark; 0 for a shape that draws nothing.
double RegmarkExtent(const RegmarkStyle& style);

}  // namespace Vandrell::Corvane

#include "PlaceRegmarks.h"

#include "AddRegmark.h"
#include "AutoPositions.h"
#include "CornerPositions.h"
#include "CutOption.h"
#include "EdgePositions.h"
#include "RegmarkLayer.h"
#include "RegmarkStyle.h"
#include "ReturnedCode.h"

namespace Vandrell::Corvane {
namespace {

AIErr FindPositions(const CutOption& option, double extent, PositionList& positions, std::int32_t& failures) {
  switch (option.action) {
    case kCornerMarks:
      return CornerPositions(extent, positions, failures);
    case kAutoMarks:
      return AutoPositions(option.count, extent, positions);
    case kEdgeRing:
      return EdgePositions(extent, positions, failures);
    default:
      return kNoErr;
  }
}

AIErr DrawMarks(const RegmarkStyle& style, const PositionList& positions) {
  for (const AIRealPoint& position : positions) {
    if (const AIErr error = AddRegmark(style, position)) return error;
  }
  return kNoErr;
}

AIErr ReplaceMarks(const CutOption& option, std::int32_t& failures) {
  const RegmarkStyle style = MakeRegmarkStyle(option);
  if (const AIErr error = ClearRegmarkLayer()) return error;
  PositionList positions;
  if (const AIErr error = FindPositions(option, RegmarkExtent(style), positions, failures)) return error;
  return DrawMarks(style, positions);
}

}  // namespace

AIErr PlaceRegmarks(const CutOption& option, std::int32_t& failures) {
  failures = 0;
  if (option.action < kCornerMarks || option.action > kEdgeRing) return kNoErr;
  return ReturnedCode([&] { return ReplaceMarks(option, failures); });
}

}  // namespace Vandrell::Corvane

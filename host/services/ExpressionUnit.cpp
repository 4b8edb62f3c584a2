#include "ExpressionUnit.h"

#include <cstddef>
#include <iterator>

namespace host {
namespace {

constexpr ExpressionUnit kFieldUnits[] = {
    unit::kNumber,  unit::kPoint,  unit::kInch,   unit::kMillimetre, unit::kCentimetre, unit::kPica,
    unit::kPercent, unit::kDegree, unit::kQ,      unit::kNumber,     unit::kPixel,      unit::kNumber,
    unit::kFoot,    unit::kNumber, unit::kNumber, unit::kMetre,      unit::kYard};

}  // namespace

ExpressionUnit unitOfField(std::int32_t number) {
  const auto index = static_cast<std::size_t>(number);
  return number >= 0 && index < std::size(kFieldUnits) ? kFieldUnits[index] : unit::kNumber;
}

}  // namespace host

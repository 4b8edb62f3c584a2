#include "AddRegmark.h"

#include <memory>

#include "CrossRegmarkGenerator.h"
#include "CutOption.h"
#include "NoneRegmarkGenerator.h"
#include "ReturnedCode.h"
#include "RoundRegmarkGenerator.h"

namespace Vandrell::Corvane {
namespace {

std::shared_ptr<RegmarkGenerator> MakeGenerator(std::uint32_t shape) {
  switch (shape) {
    case kRoundRegmark:
      return std::make_shared<RoundRegmarkGenerator>();
    case kCrossRegmark:
      return std::make_shared<CrossRegmarkGenerator>();
    default:
      return std::make_shared<NoneRegmarkGenerator>();
  }
}

}  // namespace

AIErr AddRegmark(const RegmarkStyle& style, const AIRealPoint& point) {
  return ReturnedCode([&] { return MakeGenerator(style.shape)->Generate(style, point); });
}

}  // namespace Vandrell::Corvane

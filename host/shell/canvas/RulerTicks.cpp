#include "RulerTicks.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace host {
namespace {

constexpr double kLeastDistance = 50;  // pixels from number to number
constexpr double kRoomRoundText = 10;  // pixels
constexpr double kMostExact = 1e15;    // whole numbers up to this are exact

struct Steps {
  double leading;  // 1, 2 or 5
  int parts;       // from number to number
  int middle;      // so many parts make a middle tick; 0: none
};
constexpr std::array<Steps, 3> kSteps = {{{1, 10, 5}, {2, 4, 2}, {5, 5, 0}}};

// leading * 10^exponent
struct Step {
  Steps steps;
  int exponent;

  double size() const { return steps.leading * std::pow(10, exponent); }
  std::string text(double count) const {
    std::array<char, 400> buffer{};
    const int decimals = std::max(0, -exponent);
    const double number = count == 0 ? 0 : count * size();
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                            std::chars_format::fixed, decimals);
    return error == std::errc() ? std::string(buffer.data(), end) : std::string();
  }
};

Step stepFor(const RulerSpan& span, const std::function<double(const std::string&)>& widthOf) {
  const double perPixel = std::abs(span.perPixel);
  const double least = perPixel * kLeastDistance;
  const int from = static_cast<int>(std::floor(std::log10(least)));
  Step step{kSteps[0], from};
  for (int exponent = from;; ++exponent) {
    for (const Steps& steps : kSteps) {
      step = {steps, exponent};
      if (step.size() < least) continue;
      const double last = span.first + span.length * span.perPixel;
      const auto room = [&](double value) { return widthOf(step.text(std::floor(value / step.size()))); };
      const double needed = std::max(room(span.first), room(last)) + kRoomRoundText;
      if (step.size() >= needed * perPixel || exponent > from + 3) return step;
    }
  }
}

}  // namespace

std::vector<RulerTick> rulerTicks(const RulerSpan& span,
                                  const std::function<double(const std::string&)>& widthOf) {
  const double last = span.first + span.length * span.perPixel;
  const double reach = std::max(std::abs(span.first), std::abs(last));
  if (!(span.length > 0) || !(std::abs(span.perPixel) > reach / kMostExact) || !std::isfinite(reach))
    return {};
  const Step step = stepFor(span, widthOf);
  const int parts = step.steps.parts;
  const double part = step.size() / parts;
  const double low = std::floor(std::min(span.first, last) / step.size());
  const double high = std::ceil(std::max(span.first, last) / step.size());
  std::vector<RulerTick> ticks;
  // Whole numbers, all exact. NOLINTNEXTLINE(clang-analyzer-security.FloatLoopCounter)
  for (double count = low; count <= high; ++count) {
    for (int i = 0; i < parts; ++i) {
      const double at = (count * step.size() + i * part - span.first) / span.perPixel;
      if (i == 0) {
        ticks.push_back({at, TickSize::Numbered, step.text(count)});
      } else if (at >= 0 && at <= span.length) {
        const bool isMiddle = step.steps.middle != 0 && i % step.steps.middle == 0;
        ticks.push_back({at, isMiddle ? TickSize::Middle : TickSize::Small, {}});
      }
    }
  }
  return ticks;
}

}  // namespace host

// The ticks of a ruler and the numbers at them.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace host {

// What lies along a ruler: the number at its first pixel, how much it grows from a pixel to the next (below 0
// where it falls), and how many pixels there are.
struct RulerSpan {
  double first;
  double perPixel;
  double length;
};

enum class TickSize { Small, Middle, Numbered };

struct RulerTick {
  double at;  // pixels from the beginning; a numbered one may lie before it, since its text reaches in
  TickSize size;
  std::string text;  // empty but for numbered ones
};

// From number to number it is 1, 2 or 5 of a power of ten: the least by which neighbours keep apart, when a
// text is `widthOf` pixels long. None for a span that cannot be counted.
std::vector<RulerTick> rulerTicks(const RulerSpan& span,
                                  const std::function<double(const std::string&)>& widthOf);

}  // namespace host

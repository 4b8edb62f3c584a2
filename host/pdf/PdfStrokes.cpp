#include "PdfStrokes.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "PdfText.h"

namespace host {
namespace {

// Of a dash pattern: a shorter one is a solid line to every printer.
constexpr double kShortestPeriod = 0.01;  // units of the page

// Lines and gaps by turns, in units of the page.
std::vector<double> patternOf(const AIStrokeStyle& stroke, double scale) {
  const AIDashStyle& dash = stroke.dash;
  std::vector<double> pattern;
  for (int i = 0; i < dash.length; ++i) pattern.push_back(dash.array[i] * scale);
  if (pattern.size() % 2 != 0) pattern.insert(pattern.end(), pattern.begin(), pattern.end());
  for (std::size_t i = 0; i < pattern.size() && stroke.cap == kAIProjectingCap; i += 2) {
    const double taken = std::clamp(2 * kDotReach - pattern[i], 0.0, pattern[i + 1]);
    pattern[i] += taken;
    pattern[i + 1] -= taken;
  }
  return pattern;
}

// Readers stumble over a pattern whose numbers are all 0, and over one that begins before the line does.
void appendDash(std::string& text, const AIStrokeStyle& stroke, double scale) {
  const std::vector<double> pattern = patternOf(stroke, scale);
  const double period = std::accumulate(pattern.begin(), pattern.end(), 0.0);
  if (period < kShortestPeriod) {
    text += "[ ] 0 d\n";
    return;
  }
  text += "[ ";
  for (const double length : pattern) appendPdfNumber(text, length);
  text += "] ";
  const double offset = std::fmod(stroke.dash.offset * scale, period);
  appendPdfNumber(text, offset < 0 ? offset + period : offset);
  text += "d\n";
}

}  // namespace

bool isDot(const PathGeometry& path) {
  const auto& segments = path.segments;
  if (segments.empty() || (!path.closed && segments.size() == 1)) return false;
  const AIRealPoint at = segments.front().p;
  const auto isThere = [at](AIRealPoint point) { return point.x == at.x && point.y == at.y; };
  return std::all_of(segments.begin(), segments.end(), [&](const AIPathSegment& segment) {
    return isThere(segment.p) && isThere(segment.in) && isThere(segment.out);
  });
}

void appendPdfStroke(std::string& text, const AIStrokeStyle& stroke, double scale) {
  appendPdfNumber(text, stroke.width * scale);
  text += "w " + std::to_string(stroke.cap) + " J " + std::to_string(stroke.join) + " j ";
  appendPdfNumber(text, std::max(stroke.miterLimit, 1.0));
  text += "M ";
  appendDash(text, stroke, scale);
}

}  // namespace host

#include "PdfText.h"

#include <charconv>
#include <cmath>

#include "Geometry.h"
#include "PdfStrokes.h"

namespace host {
namespace {

constexpr int kPlaces = 4;

bool isSame(AIRealPoint a, AIRealPoint b) {
  return a.x == b.x && a.y == b.y;
}

void appendSegment(std::string& text, const AIPathSegment& from, const AIPathSegment& to,
                   const AIRealMatrix& matrix) {
  if (isSame(from.out, from.p) && isSame(to.in, to.p)) {
    appendPdfPoint(text, apply(matrix, to.p));
    text += "l\n";
    return;
  }
  for (const AIRealPoint point : {from.out, to.in, to.p}) appendPdfPoint(text, apply(matrix, point));
  text += "c\n";
}

// Not all readers draw one that is closed.
void appendDot(std::string& text, AIRealPoint at, AIRealPoint step) {
  appendPdfPoint(text, {at.x - step.x, at.y - step.y});
  text += "m\n";
  appendPdfPoint(text, {at.x + step.x, at.y + step.y});
  text += "l\n";
}

}  // namespace

void appendPdfNumber(std::string& text, double value) {
  char buffer[400];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, kPlaces).ptr;
  std::string_view number(buffer, static_cast<std::size_t>(end - buffer));
  while (number.back() == '0') number.remove_suffix(1);
  if (number.back() == '.') number.remove_suffix(1);
  if (number == "-0") number = "0";
  text.append(number) += ' ';
}

void appendPdfPoint(std::string& text, AIRealPoint point) {
  appendPdfNumber(text, point.x);
  appendPdfNumber(text, point.y);
}

void appendPdfPath(std::string& text, const PathGeometry& path, const AIRealMatrix& pageFromDocument,
                   AIRealPoint dotStep) {
  const auto& segments = path.segments;
  if (segments.empty()) return;
  if (isDot(path)) return appendDot(text, apply(pageFromDocument, segments.front().p), dotStep);
  appendPdfPoint(text, apply(pageFromDocument, segments.front().p));
  text += "m\n";
  for (std::size_t i = 1; i < segments.size(); ++i) {
    appendSegment(text, segments[i - 1], segments[i], pageFromDocument);
  }
  if (!path.closed) return;
  const AIPathSegment& last = segments.back();
  const AIPathSegment& first = segments.front();
  const bool isStraight = isSame(last.out, last.p) && isSame(first.in, first.p);
  if (!isStraight) appendSegment(text, last, first, pageFromDocument);
  text += "h\n";
}

}  // namespace host

#include "SvgLines.h"

#include <algorithm>

namespace host {

SvgLines::SvgLines(std::string_view bytes, const SvgEncoding& encoding) : bytes_(bytes), encoding_(encoding) {
  Mark mark{1, 0};
  for (std::size_t at = 0; at <= bytes.size(); at += kStride) {
    marks_.push_back(mark);
    advance(mark, at, std::min(at + kStride, bytes.size()));
  }
}

void SvgLines::advance(Mark& mark, std::size_t from, std::size_t to) const {
  const std::size_t step = encoding_.unitSize();
  for (std::size_t at = from; at < to; at += step) {
    const char16_t unit = encoding_.unitAt(bytes_, at);
    if (unit != '\n' && (unit != '\r' || encoding_.unitAt(bytes_, at + step) == '\n')) continue;
    ++mark.line;
    mark.lineBegin = at + step;
  }
}

SvgPosition SvgLines::positionOf(std::size_t offset) const {
  offset = std::min(offset, bytes_.size());
  Mark mark = marks_[offset / kStride];
  advance(mark, offset / kStride * kStride, offset);
  return {mark.line, (offset - mark.lineBegin) / encoding_.unitSize() + 1};
}

}  // namespace host

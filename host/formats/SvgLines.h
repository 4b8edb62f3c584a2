// Finds the line and column of an offset.
#pragma once

#include <string_view>
#include <vector>

#include "SvgEncoding.h"
#include "SvgSource.h"

namespace host {

// Lines end with LF, CR LF or CR. Made once in time linear to the bytes, then quick to ask, however often.
class SvgLines {
 public:
  SvgLines(std::string_view bytes, const SvgEncoding& encoding);  // both must outlive it

  SvgPosition positionOf(std::size_t offset) const;  // of the end, for an offset behind it

 private:
  struct Mark {  // the state at a multiple of kStride
    std::size_t line;
    std::size_t lineBegin;
  };
  static constexpr std::size_t kStride = 65536;

  void advance(Mark& mark, std::size_t from, std::size_t to) const;

  std::string_view bytes_;
  const SvgEncoding& encoding_;
  std::vector<Mark> marks_;
};

}  // namespace host

// What a reader has to say about a drawing.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "SvgDrawing.h"
#include "SvgQuoted.h"

namespace host {

class SvgRemarks {
 public:
  static constexpr std::size_t kMaxRemarks = 1000;

  explicit SvgRemarks(const SvgSource& source) : source_(source) {}

  // A reason that was given for the element before counts once.
  void add(NodeIndex element, std::string reason);
  // About one byte of the value of an attribute without a prefix.
  void addAt(NodeIndex element, std::string_view name, std::size_t offset, std::string reason);
  // All in the order they were given, and a last one that counts those beyond kMaxRemarks.
  std::vector<SvgRemark> take();

 private:
  void add(NodeIndex element, std::string reason, std::size_t position);

  const SvgSource& source_;
  std::vector<SvgRemark> remarks_;
  std::unordered_set<std::size_t> given_;  // hashes
  std::size_t leftOut_ = 0;
};

}  // namespace host

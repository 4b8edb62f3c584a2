// Equal path styles share one record, since a drawing has far fewer looks than paths.
#pragma once

#include <memory>
#include <unordered_set>

#include "AIPathStyle.h"

namespace host {

class SvgStylePool {
 public:
  std::shared_ptr<const AIPathStyle> share(const AIPathStyle& style);

 private:
  using Pointer = std::shared_ptr<const AIPathStyle>;
  struct Hash {
    std::size_t operator()(const Pointer& style) const;
  };
  struct Equal {
    bool operator()(const Pointer& a, const Pointer& b) const;
  };

  std::unordered_set<Pointer, Hash, Equal> styles_;
};

}  // namespace host

// Owns strings that others look at through string_views.
#pragma once

#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace host {

class StringArena {
 public:
  // A copy that stays where it is as long as the arena lives, wherever the arena moves.
  std::string_view keep(std::string_view text) {
    if (text.empty()) return {};
    if (text.size() > left_) grow(text.size());
    char* const copy = next_;
    std::memcpy(copy, text.data(), text.size());
    next_ += text.size();
    left_ -= text.size();
    return {copy, text.size()};
  }

 private:
  static constexpr std::size_t kBlock = 16384;

  void grow(std::size_t atLeast) {
    const std::size_t size = atLeast > kBlock ? atLeast : kBlock;
    blocks_.push_back(std::make_unique<char[]>(size));
    next_ = blocks_.back().get();
    left_ = size;
  }

  std::vector<std::unique_ptr<char[]>> blocks_;
  char* next_ = nullptr;
  std::size_t left_ = 0;
};

}  // namespace host

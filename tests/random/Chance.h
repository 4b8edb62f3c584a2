// Chance that falls the same way for the same seed, on every machine.
#pragma once

#include <cstdint>
#include <random>

namespace host {

class Chance {
 public:
  explicit Chance(std::uint64_t seed) : random_(seed) {}

  int below(int count) { return static_cast<int>(random_() % static_cast<std::uint64_t>(count)); }
  bool oneIn(int count) { return below(count) == 0; }
  // `things` must not be empty.
  template <typename Things>
  auto& anyOf(Things& things) {
    return things[static_cast<std::size_t>(below(static_cast<int>(std::size(things))))];
  }

 private:
  std::mt19937_64 random_;
};

}  // namespace host

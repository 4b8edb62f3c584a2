// Counts what the code under test allocates, and makes it run out of memory.
#pragma once

#include <cstddef>

// While one lives, the allocation number `failing` (from 0) and all behind it fail; without a number none
// does.
class MemoryWatch {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  explicit MemoryWatch(std::size_t failing = kNone);
  MemoryWatch(const MemoryWatch&) = delete;
  MemoryWatch& operator=(const MemoryWatch&) = delete;
  ~MemoryWatch();

  std::size_t Count() const;    // of allocations asked for since it was made
  std::size_t Largest() const;  // of them, in bytes
};

// Counts what the code under test allocates, and makes it run out of memory.
#pragma once

#include <cstddef>

// While one lives, the allocation number `failing` (from 0) and all behind it fail; without a number none
// does.
struct MemoryWatch {
  explicit MemoryWatch(std::size_t failing = static_cast<std::size_t>(-1)) : firstFailing(failing) {
    current = this;
  }
  MemoryWatch(const MemoryWatch&) = delete;
  ~MemoryWatch() { current = nullptr; }

  const std::size_t firstFailing;
  std::size_t count = 0;    // of allocations asked for since it was made
  std::size_t largest = 0;  // of them, in bytes
  static inline MemoryWatch* current = nullptr;
};

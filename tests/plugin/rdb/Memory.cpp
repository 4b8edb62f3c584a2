#include "Memory.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

bool isWatched = false;
std::size_t firstFailing = 0;
std::size_t count = 0;
std::size_t largest = 0;

void* Allocate(std::size_t size) {
  if (isWatched) {
    largest = std::max(largest, size);
    if (count++ >= firstFailing) return nullptr;
  }
  return std::malloc(size > 0 ? size : 1);
}

}  // namespace

MemoryWatch::MemoryWatch(std::size_t failing) {
  firstFailing = failing;
  count = largest = 0;
  isWatched = true;
}

MemoryWatch::~MemoryWatch() {
  isWatched = false;
}

std::size_t MemoryWatch::Count() const {
  return count;
}

std::size_t MemoryWatch::Largest() const {
  return largest;
}

void* operator new(std::size_t size) {
  void* const memory = Allocate(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size);
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

// Bytes that may be handed over to somebody who ends them with free().
#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

namespace qRVADM {

struct FreeBytes {
  void operator()(char* bytes) const { std::free(bytes); }
};

using MallocBytes = std::unique_ptr<char, FreeBytes>;

// Keeps the bytes as far as they fit. False, with all as it was, if there is no memory.
inline bool Resize(MallocBytes& bytes, std::size_t size) {
  char* resized = static_cast<char*>(std::realloc(bytes.get(), size));
  if (resized == nullptr) return false;
  static_cast<void>(bytes.release());  // realloc has ended the old block
  bytes.reset(resized);
  return true;
}

}  // namespace qRVADM

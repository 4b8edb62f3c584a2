// The hash of a key component.
#pragma once

#include <cstddef>

// h = byte + 28763 h for each byte in order, modulo 2^32. The low 12 bits are those of the same hash taken
// modulo 4096, and the low 8 are the bucket. Four bytes are taken in one step to shorten the chain of
// products.
inline unsigned RDB_Hash(const char* name, std::size_t length) {
  constexpr unsigned m1 = 28763u, m2 = m1 * m1, m3 = m2 * m1, m4 = m3 * m1;
  const auto byte = [name](std::size_t at) { return unsigned{static_cast<unsigned char>(name[at])}; };
  unsigned hash = 0;
  std::size_t at = 0;
  for (; length - at >= 4; at += 4)
    hash = hash * m4 + (byte(at) * m3 + byte(at + 1) * m2 + byte(at + 2) * m1 + byte(at + 3));
  for (; at < length; ++at) hash = hash * m1 + byte(at);
  return hash;
}

inline unsigned RDB_SlotOfHash(unsigned hash) {
  return hash & 0xFFu;
}

// Eight bytes at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

constexpr std::size_t kRDBWordSize = 8;

// The first byte is the lowest, on every machine.
inline std::uint64_t RDB_LoadWord(const char* bytes) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, sizeof word);
#if __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
  word = __builtin_bswap64(word);
#endif
  return word;
}

// The top bit of each byte that is `byte`; above the lowest of them also of others (S. E. Anderson, Bit
// Twiddling Hacks, "Determine if a word has a byte equal to n").
constexpr std::uint64_t RDB_MarkByte(std::uint64_t word, unsigned char byte) {
  constexpr std::uint64_t kOnes = 0x0101010101010101u, kTops = 0x8080808080808080u;
  const std::uint64_t difference = word ^ (kOnes * byte);
  return (difference - kOnes) & ~difference & kTops;
}

// The first of the bytes `wanted` from `begin` on, or `end`.
template <char... wanted>
const char* RDB_FindByte(const char* begin, const char* end) {
  for (; static_cast<std::size_t>(end - begin) >= kRDBWordSize; begin += kRDBWordSize) {
    const std::uint64_t word = RDB_LoadWord(begin);
    const std::uint64_t marks = (RDB_MarkByte(word, static_cast<unsigned char>(wanted)) | ...);
    if (marks != 0) return begin + __builtin_ctzll(marks) / 8;
  }
  while (begin != end && ((*begin != wanted) && ...)) ++begin;
  return begin;
}

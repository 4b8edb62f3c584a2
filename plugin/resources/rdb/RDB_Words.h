// Eight bytes at a time, or many more where the processor can.
#pragma once

#ifdef __SSE2__
#include <emmintrin.h>
#endif

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

#ifdef __SSE2__
// A bit for each of the sixteen bytes that is one of those `wanted`, the lowest for the first.
template <char... wanted>
std::uint64_t RDB_MarkSixteen(const char* bytes) {
  const __m128i found = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
  const __m128i marks = (_mm_cmpeq_epi8(found, _mm_set1_epi8(wanted)) | ...);
  return static_cast<unsigned>(_mm_movemask_epi8(marks));
}

// The same for 64 bytes. Looking at so many at once, and seldom having to go on, is what takes little time:
// most texts end in the first 64.
template <char... wanted>
std::uint64_t RDB_MarkSixtyFour(const char* bytes) {
  return RDB_MarkSixteen<wanted...>(bytes) | RDB_MarkSixteen<wanted...>(bytes + 16) << 16 |
         RDB_MarkSixteen<wanted...>(bytes + 32) << 32 | RDB_MarkSixteen<wanted...>(bytes + 48) << 48;
}
#endif

// The first of the bytes `wanted` from `begin` on, or `end`.
template <char... wanted>
const char* RDB_FindByte(const char* begin, const char* end) {
#ifdef __SSE2__
  for (; end - begin >= 64; begin += 64) {
    if (const std::uint64_t marks = RDB_MarkSixtyFour<wanted...>(begin))
      return begin + __builtin_ctzll(marks);
  }
#endif
  for (; static_cast<std::size_t>(end - begin) >= kRDBWordSize; begin += kRDBWordSize) {
    const std::uint64_t word = RDB_LoadWord(begin);
    const std::uint64_t marks = (RDB_MarkByte(word, static_cast<unsigned char>(wanted)) | ...);
    if (marks != 0) return begin + __builtin_ctzll(marks) / 8;
  }
  while (begin != end && ((*begin != wanted) && ...)) ++begin;
  return begin;
}

// The hash of a key component.
#pragma once

#include "RDB_Words.h"

// Modulo 4096 this is h = byte + 28763 h for each byte in order, and its low 8 bits are the bucket. Eight
// bytes are taken in one step: pairs of neighbours become one number four, two and one at a time in the lanes
// of a word. The factors are 28763, its square, its fourth and its eighth power modulo 4096; beyond that they
// are as big as the lanes allow, so that the bits above the low 12 tell names apart that those do not.
inline unsigned RDB_HashWord(std::uint64_t word) {
  constexpr std::uint64_t kBytes = 0x00FF00FF00FF00FFu, kPairs = 0x0000FFFF0000FFFFu;
  const std::uint64_t pairs = (word & kBytes) * 91u + (word >> 8 & kBytes);
  const std::uint64_t quads = (pairs & kPairs) * 180313u + (pairs >> 16 & kPairs);
  return static_cast<unsigned>(quads) * 0x7F4A7EF1u + static_cast<unsigned>(quads >> 32);
}

// The first `odd` of the bytes, at the top of a word.
inline std::uint64_t RDB_LoadOdd(const char* name, std::size_t length, std::size_t odd) {
  if (length >= kRDBWordSize) return RDB_LoadWord(name) << 8 << (56 - 8 * odd);
  std::uint64_t word = 0;
  for (std::size_t at = 0; at < odd; ++at)
    word = word >> 8 | std::uint64_t{static_cast<unsigned char>(name[at])} << 56;
  return word;
}

inline unsigned RDB_Hash(const char* name, std::size_t length) {
  constexpr unsigned kPerWord = 0x27D4EEE1u;
  // The odd bytes come first: in front of them the word is 0, which counts for nothing.
  const std::size_t odd = length % kRDBWordSize;
  unsigned hash = RDB_HashWord(RDB_LoadOdd(name, length, odd));
  for (std::size_t at = odd; at < length; at += kRDBWordSize)
    hash = hash * kPerWord + RDB_HashWord(RDB_LoadWord(name + at));
  return hash;
}

inline unsigned RDB_SlotOfHash(unsigned hash) {
  return hash & 0xFFu;
}

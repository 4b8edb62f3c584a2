#include "ColourCache.h"

#include <cstdint>
#include <cstring>

namespace host {
namespace {

bool sameBits(const ColourQuestion& a, const ColourQuestion& b) {
  // Bits, since a component that is no number is a question of its own.
  // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison)
  const bool same = std::memcmp(a.sample.data(), b.sample.data(), sizeof a.sample) == 0;
  return same && a.source == b.source && a.destination == b.destination;
}

}  // namespace

// FNV-1a over words, its upper bits folded in (http://www.isthe.com/chongo/tech/comp/fnv/).
std::size_t ColourCache::placeOf(const ColourQuestion& question) {
  constexpr std::uint64_t prime = 0x100000001b3;
  std::uint64_t hash = 0xcbf29ce484222325;
  hash = (hash ^ static_cast<std::uint64_t>(question.source)) * prime;
  hash = (hash ^ static_cast<std::uint64_t>(question.destination)) * prime;
  for (const double component : question.sample) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &component, sizeof bits);
    hash = (hash ^ bits ^ (bits >> 32)) * prime;
  }
  return (hash ^ (hash >> 32) ^ (hash >> 48)) % kPlaces;
}

const ColourAnswer* ColourCache::find(const ColourQuestion& question) const {
  const Place& place = places_[placeOf(question)];
  return place.taken && sameBits(place.question, question) ? &place.answer : nullptr;
}

void ColourCache::put(const ColourQuestion& question, const ColourAnswer& answer) {
  places_[placeOf(question)] = {true, question, answer};
}

}  // namespace host

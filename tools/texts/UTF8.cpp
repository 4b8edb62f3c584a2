#include "UTF8.h"

namespace texts {
namespace {

struct Sequence {
  std::size_t bytes = 0;  // 0: no lead byte
  char32_t bits = 0;      // of the lead byte
  char32_t least = 0;     // the first character that needs so many bytes
};

Sequence SequenceOf(unsigned char lead) {
  if (lead < 0x80) return {1, lead, 0};
  if (lead >= 0xC0 && lead < 0xE0) return {2, lead & 0x1FU, 0x80};
  if (lead >= 0xE0 && lead < 0xF0) return {3, lead & 0x0FU, 0x800};
  if (lead >= 0xF0 && lead < 0xF8) return {4, lead & 0x07U, 0x10000};
  return {};
}

}  // namespace

std::optional<std::size_t> UTF16Length(std::string_view text) {
  std::size_t units = 0;
  while (!text.empty()) {
    const Sequence sequence = SequenceOf(static_cast<unsigned char>(text.front()));
    if (sequence.bytes == 0 || sequence.bytes > text.size()) return std::nullopt;
    char32_t character = sequence.bits;
    for (const char follower : text.substr(1, sequence.bytes - 1)) {
      const auto byte = static_cast<unsigned char>(follower);
      if ((byte & 0xC0U) != 0x80) return std::nullopt;
      character = character << 6U | (byte & 0x3FU);
    }
    const bool isSurrogate = character >= 0xD800 && character < 0xE000;
    if (character < sequence.least || isSurrogate || character > 0x10FFFF) return std::nullopt;
    units += character < 0x10000 ? 1 : 2;
    text.remove_prefix(sequence.bytes);
  }
  return units;
}

}  // namespace texts

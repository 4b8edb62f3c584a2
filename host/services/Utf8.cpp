#include "Utf8.h"

namespace host {
namespace {

struct Sequence {
  std::size_t bytes;
  bool valid;
};

unsigned byteAt(std::string_view text, std::size_t index) {
  return static_cast<unsigned char>(text[index]);
}

bool isContinuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

std::size_t continuationsAfter(unsigned lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return 1;
  if (lead >= 0xE0 && lead <= 0xEF) return 2;
  if (lead >= 0xF0 && lead <= 0xF4) return 3;
  return 0;
}

// The first sequence of a text that is not empty. Bounds of the second byte: Unicode Standard, table 3-7.
Sequence firstSequence(std::string_view text) {
  const unsigned lead = byteAt(text, 0);
  if (lead < 0x80) return {1, true};
  const std::size_t count = continuationsAfter(lead);
  if (count == 0) return {1, false};
  unsigned low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  unsigned high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  for (std::size_t i = 1; i <= count; ++i) {
    if (i >= text.size() || byteAt(text, i) < low || byteAt(text, i) > high) return {i, false};
    low = 0x80;
    high = 0xBF;
  }
  return {count + 1, true};
}

}  // namespace

std::string validUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const Sequence sequence = firstSequence(bytes);
    text += sequence.valid ? bytes.substr(0, sequence.bytes) : std::string_view("\xEF\xBF\xBD");
    bytes.remove_prefix(sequence.bytes);
  }
  return text;
}

std::size_t utf16Length(std::string_view text) {
  std::size_t units = 0;
  for (const char c : text) {
    if (isContinuation(c)) continue;
    units += static_cast<unsigned char>(c) >= 0xF0 ? 2 : 1;
  }
  return units;
}

std::string_view utf8Prefix(std::string_view text, std::size_t maxBytes) {
  if (text.size() <= maxBytes) return text;
  while (maxBytes > 0 && isContinuation(text[maxBytes])) --maxBytes;
  return text.substr(0, maxBytes);
}

}  // namespace host

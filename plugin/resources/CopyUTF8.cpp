#include "CopyUTF8.h"

namespace {

// Bytes of the sequence that begins with `lead`; 0 if none does.
std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead < 0xC0) return 0;
  if (lead < 0xE0) return 2;
  if (lead < 0xF0) return 3;
  return lead < 0xF8 ? 4 : 0;
}

bool IsWhole(const char* sequence, std::size_t length) {
  for (std::size_t i = 1; i < length; ++i) {
    if ((static_cast<unsigned char>(sequence[i]) & 0xC0U) != 0x80) return false;  // the closing NUL too
  }
  return length != 0;
}

}  // namespace

char* CopyUTF8(char* target, const char* source, std::size_t size) {
  if (size == 0) return target;
  std::size_t copied = 0;
  for (; copied < size - 1 && source[copied] != '\0'; ++copied) target[copied] = source[copied];
  target[copied] = '\0';

  char* end = target;
  while (*end != '\0') {
    const std::size_t length = SequenceLength(static_cast<unsigned char>(*end));
    if (!IsWhole(end, length)) break;
    end += length;
  }
  *end = '\0';
  return target;
}

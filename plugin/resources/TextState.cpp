#include "TextState.h"

#include <cstring>

#include "CopyUTF8.h"

TextState theTextState;

const char* InResultBuffer(const char* text, std::size_t length) {
  char* result = TheTextState().result;
  if (length >= kTextSize) return CopyUTF8(result, text, kTextSize);
  std::memcpy(result, text, length + 1);
  return result;
}

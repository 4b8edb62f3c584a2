#include "EscapeKey.h"

#include <string_view>

std::string EscapeKey(const char* text) {
  std::string key;
  for (const char byte : std::string_view(text)) {
    if (std::string_view("\\.*\"\n\r").find(byte) != std::string_view::npos) key += '\\';
    key += byte;
  }
  return key;
}

#include "KeyForm.h"

#include <stdexcept>

#include "RDB.h"

namespace texts {

std::string KeyOfText(std::string_view text) {
  std::string key;
  for (const char byte : text) {
    if (std::string_view("\\.*\"\n\r").find(byte) != std::string_view::npos) key += '\\';
    key += byte;
  }
  return key;
}

std::string CanonicalKey(const std::string& key) {
  const RDB_Key parts = RDB_ParseKey(key.c_str());
  if (!parts) throw std::runtime_error("out of memory");
  std::string canonical;
  for (const RDB_KeyPart* part = parts.get(); part->name != nullptr; ++part) {
    if (part != parts.get()) canonical += '.';
    const bool isWildcard = part->slot == kRDBStar || part->slot == kRDBDots;
    canonical += isWildcard ? std::string(part->name) : KeyOfText(part->name);
  }
  return canonical;
}

std::string OnOneLine(std::string_view text) {
  std::string line;
  for (const char byte : text) {
    switch (byte) {
      case '\n':
        line += "\\n";
        break;
      case '\r':
        line += "\\r";
        break;
      case '\t':
        line += "\\t";
        break;
      default:
        line += byte;
    }
  }
  return line;
}

}  // namespace texts

// Writes the compiled form, sound or not.
#pragma once

#include <string>

// 32 bits, the highest byte first.
inline std::string CompiledNumber(std::size_t number) {
  std::string bytes;
  for (const unsigned shift : {24u, 16u, 8u, 0u}) bytes += static_cast<char>(number >> shift & 0xFFu);
  return bytes;
}

// The front of a file, with a table of three types.
inline std::string CompiledHead() {
  std::string bytes = std::string("RVRDB\1\0", 7) + CompiledNumber(3);
  for (const std::string type : {"", "some type", "string"}) bytes += CompiledNumber(type.size()) + type;
  return bytes;
}

// `kind` is 1 for "*", 2 for "."; `type` counts from 0 in the table.
inline std::string Compiled(const std::string& name, const std::string& value, unsigned childCount = 0,
                            char kind = 0, unsigned type = 2) {
  return kind + CompiledNumber(type) + CompiledNumber(name.size()) + CompiledNumber(value.size()) +
         CompiledNumber(childCount) + name + value;
}

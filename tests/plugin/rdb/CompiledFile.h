// Writes the compiled form, sound or not.
#pragma once

#include <string>
#include <vector>

// The front of a file, with its table of types.
std::string CompiledHead(const std::vector<std::string>& types);

struct CompiledRecord {
  std::string name;
  std::string value;
  unsigned childCount = 0;
  char kind = 0;  // 1 for "*", 2 for "."
  unsigned type = 0;
};
std::string Compiled(const CompiledRecord& record);

// 32 bits, the highest byte first.
std::string CompiledNumber(unsigned number);

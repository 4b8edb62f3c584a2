#include "CompiledFile.h"

std::string CompiledNumber(unsigned number) {
  std::string bytes;
  for (const int shift : {24, 16, 8, 0}) bytes += static_cast<char>(number >> shift & 0xFFu);
  return bytes;
}

std::string CompiledHead(const std::vector<std::string>& types) {
  std::string bytes = std::string("RVRDB\1\0", 7) + CompiledNumber(static_cast<unsigned>(types.size()));
  for (const std::string& type : types) bytes += CompiledNumber(static_cast<unsigned>(type.size())) + type;
  return bytes;
}

std::string Compiled(const CompiledRecord& record) {
  return record.kind + CompiledNumber(record.type) +
         CompiledNumber(static_cast<unsigned>(record.name.size())) +
         CompiledNumber(static_cast<unsigned>(record.value.size())) + CompiledNumber(record.childCount) +
         record.name + record.value;
}

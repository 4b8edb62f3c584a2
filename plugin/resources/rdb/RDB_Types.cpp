#include "RDB_Types.h"

#include <unordered_map>

#include "RDB.h"

unsigned RDB_TypeIndex(const std::string& name) {
  static std::unordered_map<std::string, unsigned> indices{{"", kRDBNoType}, {"string", kRDBString}};
  const auto next = static_cast<unsigned>(indices.size());
  return indices.emplace(name, next).first->second;
}

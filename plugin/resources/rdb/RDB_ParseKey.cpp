#include <algorithm>
#include <cstring>

#include "RDB.h"
#include "RDB_KeySplitter.h"

namespace {

// The list has never more parts than the key has dots, and one more.
std::size_t MostParts(const char* key, std::size_t length) {
  return static_cast<std::size_t>(std::count(key, key + length, '.')) + 1;
}

bool EndsInEmptyPart(const char* key, std::size_t length) {
  return length >= 2 && key[length - 1] == '.' && key[length - 2] != '.' && key[length - 2] != '\\';
}

}  // namespace

RDB_Key RDB_ParseKey(const char* key) {
  rdbError = key != nullptr ? kRDBNoError : kRDBBadKey;
  if (key == nullptr) return nullptr;
  const std::size_t length = std::strlen(key);
  const std::size_t listSize = (MostParts(key, length) + 1) * sizeof(RDB_KeyPart);
  void* const block = ::operator new(listSize + length + 1, std::nothrow);
  if (block == nullptr) {
    rdbError = EndsInEmptyPart(key, length) ? kRDBBadKey : kRDBOutOfMemory;
    return nullptr;
  }
  RDB_Key list(static_cast<RDB_KeyPart*>(block));
  char* const names = static_cast<char*>(block) + listSize;
  std::memcpy(names, key, length + 1);
  RDB_KeySplitter splitter(names, length);
  RDB_KeyPart* part = list.get();
  while (splitter.Next(*part)) ++part;
  *part = {};
  return list;
}

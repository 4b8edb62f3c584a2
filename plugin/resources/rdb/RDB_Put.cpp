#include "RDB_Put.h"

#include <cstring>
#include <string>

#include "RDB_KeySplitter.h"

RDB_Node& RDB_MakeNode(RDB_Database& db, char* key, std::size_t length) {
  RDB_KeySplitter splitter(key, length);
  RDB_Node* node = &db.root;
  RDB_KeyPart part;
  while (splitter.Next(part)) node = &node->FindOrMakeChild(part);
  return *node;
}

namespace {

void Put(RDB_Database* db, const char* key, unsigned type, std::size_t size, const void* data) {
  if (!RDB_Begin(db)) return;
  if (key == nullptr) {
    rdbError = kRDBBadKey;
    return;
  }
  RDB_CatchOutOfMemory([&] {
    // First the value: `data` may be what it is going to replace.
    RDB_ValueRef value;
    if (size > 0 && data != nullptr) value = RDB_ValueRef(type, size, data);
    std::string used(key);
    RDB_MakeNode(*db, used.data(), used.size()).value = std::move(value);
  });
}

}  // namespace

void RDB_Put(RDB_Database* db, const char* key, unsigned type, unsigned size, const void* data) {
  Put(db, key, type, size, data);
}

void RDB_PutString(RDB_Database* db, const char* key, const char* text) {
  Put(db, key, kRDBString, text != nullptr ? std::strlen(text) + 1 : 0, text);
}

#include <cstring>

#include "RDB_Database.h"
#include "RDB_Hash.h"
#include "RDB_Lookup.h"

namespace {

RDB_KeyPart PartOf(const char* name) {
  const std::size_t length = std::strlen(name);
  const unsigned hash = RDB_Hash(name, length);
  return {RDB_SlotOfHash(hash), hash, length, name};
}

const RDB_Node* FindNode(const RDB_Database& db, const char* key) {
  const RDB_Key parts = RDB_ParseKey(key);
  if (!parts) return nullptr;
  std::size_t count = 0;
  while (parts[count].name != nullptr) ++count;
  return RDB_Lookup(db.root, parts.get(), count);
}

RDB_Text CopyOfData(const RDB_Value& value) {
  const std::size_t size = std::size_t{value.size} + 1;
  RDB_Text copy(static_cast<char*>(::operator new(size)));
  std::memcpy(copy.get(), value.Data(), size);
  return copy;
}

}  // namespace

void RDB_Get(const RDB_Database* db, const char* key, unsigned& type, unsigned& size, RDB_Text& data) {
  type = kRDBNoType;
  size = 0;
  data.reset();
  if (!RDB_Begin(db)) return;
  RDB_CatchOutOfMemory([&] {
    const RDB_Node* const node = FindNode(*db, key);
    if (node == nullptr) return;
    data = CopyOfData(*node->value);
    type = node->value->type;
    size = node->value->size;
  });
}

RDB_Text RDB_GetString(const RDB_Database* db, const char* key) {
  RDB_Text text;
  if (!RDB_Begin(db)) return text;
  RDB_CatchOutOfMemory([&] {
    const RDB_Node* const node = FindNode(*db, key);
    if (node != nullptr && node->HasText()) text = CopyOfData(*node->value);
  });
  return text;
}

const char* RDB_FindString(const RDB_Database* db, const char* group, const char* text) {
  const char* found = nullptr;
  if (!RDB_Begin(db)) return found;
  if (text == nullptr) {
    rdbError = kRDBBadKey;
    return found;
  }
  RDB_CatchOutOfMemory([&] {
    const RDB_KeyPart parts[] = {group != nullptr ? PartOf(group) : RDB_KeyPart{}, PartOf(text)};
    const std::size_t count = group != nullptr ? 2 : 1;
    const RDB_Node* const node = RDB_Lookup(db->root, parts + (2 - count), count);
    if (node != nullptr && node->HasText()) found = node->value->Data();
  });
  return found;
}

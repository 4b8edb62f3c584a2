#include <cstring>

#include "RDB_Database.h"
#include "RDB_KeySplitter.h"
#include "RDB_Lookup.h"

namespace {

const RDB_Node* FindNode(const RDB_Database& db, const char* key) {
  const RDB_Key parts = RDB_ParseKey(key);
  if (!parts) return nullptr;
  std::size_t count = 0;
  while (parts[count].name != nullptr) ++count;
  return RDB_Lookup(db.root, parts.get(), count);
}

// Most groups that are asked for aren't there; then the text need not be looked at.
const RDB_Node* FindText(const RDB_Node& root, const char* group, const char* text) {
  if (group == nullptr) {
    const RDB_KeyPart part = RDB_PartOfName(text);
    return RDB_Lookup(root, &part, 1);
  }
  const RDB_KeyPart groupPart = RDB_PartOfName(group);
  const bool canLead =
      root.children && (root.children->HasWildcards() || root.FindChild(groupPart) != nullptr);
  if (!canLead) return nullptr;
  const RDB_KeyPart parts[] = {groupPart, RDB_PartOfName(text)};
  return RDB_Lookup(root, parts, 2);
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

const char* RDB_FindString(const RDB_Database* db, const char* group, const char* text, std::size_t* length) {
  if (!RDB_Begin(db)) return nullptr;
  if (text == nullptr) {
    rdbError = kRDBBadKey;
    return nullptr;
  }
  const RDB_Node* node = nullptr;
  RDB_CatchOutOfMemory([&] { node = FindText(db->root, group, text); });
  if (node == nullptr || !node->HasText()) return nullptr;
  const RDB_Value& value = *node->value;
  const char* const data = value.Data();
  if (length != nullptr)
    *length = value.size > 0 && data[value.size - 1] == '\0' ? value.size - 1 : value.size;
  return data;
}

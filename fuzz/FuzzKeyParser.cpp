// Arbitrary bytes as a key.
#include <cstdint>
#include <cstring>
#include <string>

#include "Expect.h"
#include "FuzzTarget.h"
#include "Properties.h"
#include "RDB.h"

namespace {

// The slot as it is defined, byte by byte.
unsigned SlotOf(const char* name) {
  unsigned hash = 0;
  for (; *name != '\0'; ++name) hash = (static_cast<unsigned char>(*name) + 28763u * hash) & 0xFFFu;
  return hash & 0xFFu;
}

std::string Escaped(const char* name) {
  // Nothing but the end of a key leaves an empty name behind a lone backslash.
  if (*name == '\0') return "\\";
  std::string escaped;
  for (; *name != '\0'; ++name) {
    escaped += '\\';
    escaped += *name;
  }
  return escaped;
}

// A key that has these parts.
std::string Spelled(const RDB_KeyPart* parts) {
  std::string key;
  bool isBehindDots = false;
  for (const RDB_KeyPart* part = parts; part->name != nullptr; ++part) {
    if (part->slot == kRDBDots) {
      key += part == parts ? ".." : "...";
    } else {
      if (part != parts && !isBehindDots) key += '.';
      key += part->slot == kRDBStar ? "*" : Escaped(part->name);
    }
    isBehindDots = part->slot == kRDBDots;
  }
  return key;
}

void ExpectEqual(const RDB_KeyPart* one, const RDB_KeyPart* other) {
  for (; one->name != nullptr && other->name != nullptr; ++one, ++other) {
    Expect(one->slot == other->slot, "a spelled key has the same slots");
    Expect(std::strcmp(one->name, other->name) == 0, "a spelled key has the same names");
  }
  Expect(one->name == other->name, "a spelled key has as many parts");
}

void ExpectStored(const std::string& key, const RDB_KeyPart* parts) {
  const RDB_Handle db = RDB_Create();
  RDB_PutString(db.get(), key.c_str(), "text");
  const RDB_Text text = RDB_GetString(db.get(), key.c_str());
  Expect(text && std::strcmp(text.get(), "text") == 0, "what was put is found");
  const bool isOneName = parts->name != nullptr && parts->slot < kRDBStar && parts[1].name == nullptr;
  if (isOneName)
    Expect(RDB_FindString(db.get(), nullptr, parts->name) != nullptr, "a text is found under its own name");
  ExpectProperties(*db);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string key(reinterpret_cast<const char*>(data), size);
  const RDB_Key parts = RDB_ParseKey(key.c_str());
  for (const RDB_KeyPart* part = parts.get(); part->name != nullptr; ++part) {
    Expect(std::strlen(part->name) == part->length, "a name is as long as its part says");
    Expect(part->slot >= kRDBStar || part->slot == SlotOf(part->name), "a slot comes from the hash");
  }
  ExpectEqual(parts.get(), RDB_ParseKey(Spelled(parts.get()).c_str()).get());
  ExpectStored(key, parts.get());
  return 0;
}

#include "MissingKeys.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "TextState.h"

namespace {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

const char* RecordFile() {
  const char* path = std::getenv("LOCALE_MISSING");
  return path != nullptr && path[0] != '\0' ? path : nullptr;
}

// Null for the key without components.
const char* LastComponent(const RDB_Key& key) {
  const char* last = nullptr;
  for (const RDB_KeyPart* part = key.get(); part != nullptr && part->name != nullptr; ++part) {
    last = part->name;
  }
  return last;
}

}  // namespace

bool MissingKeysAreRecorded() {
  return RecordFile() != nullptr;
}

void RecordMissingKey(const char* key) {
  const char* path = RecordFile();
  if (path == nullptr) return;
  RDB_Handle& missing = TheTextState().missingDatabase;
  if (missing && RDB_GetString(missing.get(), key)) return;
  const RDB_Key components = RDB_ParseKey(key);
  const char* text = LastComponent(components);
  if (text == nullptr) return;
  if (!missing) {
    missing = RDB_Create();
    RDB_LoadText(missing.get(), path);
  }
  if (const std::unique_ptr<std::FILE, FileCloser> file{std::fopen(path, "a")}) {
    std::fprintf(file.get(), "\n\"%s\" : \"%s\"", key, text);
  }
  RDB_PutString(missing.get(), key, text);
}

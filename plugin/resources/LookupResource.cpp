#include "LookupResource.h"

#include <string>

#include "EscapeKey.h"
#include "MissingKeys.h"
#include "TextState.h"

RDB_Text LookupResource(const RDB_Database* database, const char* prefix, const char* suffix) {
  if (prefix == nullptr && suffix == nullptr) return nullptr;
  std::string key = prefix != nullptr ? EscapeKey(prefix) : std::string();
  if (suffix != nullptr) key += suffix;
  const RDB_Database* texts = TheTextState().mainDatabase.get();
  if (texts != nullptr) {
    if (RDB_Text text = RDB_GetString(database != nullptr ? database : texts, key.c_str())) return text;
  }
  if (database == nullptr) RecordMissingKey(key.c_str());
  return texts != nullptr ? RDB_GetString(texts, ("Defaults." + key).c_str()) : nullptr;
}

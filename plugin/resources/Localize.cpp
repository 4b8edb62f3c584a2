#include "Localize.h"

#include <cstring>
#include <string>

#include "EscapeKey.h"
#include "LookupResource.h"
#include "MissingKeys.h"
#include "TextModules.h"
#include "TextState.h"

namespace {

constexpr std::size_t kItemKeySize = 1024;

// What LookupResource finds for the sentence, without copies on the way: this is asked for every label.
const char* FindSentence(const TextState& state, const char* text, std::size_t& length) {
  const RDB_Database* texts = state.mainDatabase.get();
  if (texts != nullptr) {
    if (const char* found = RDB_FindString(texts, nullptr, text, &length)) return found;
  }
  if (MissingKeysAreRecorded()) RecordMissingKey(EscapeKey(text).c_str());
  return texts != nullptr ? RDB_FindString(texts, "Defaults", text, &length) : nullptr;
}

}  // namespace

const char* Localize(const char* text) {
  if (text == nullptr || text[0] == '\0') return text;
  const TextState& state = TheTextState();
  if (state.textInitialised == 0) EnsureTextInitialised();
  std::size_t length = 0;
  const char* found = FindSentence(state, text, length);
  return found != nullptr ? InResultBuffer(found, length) : text;
}

const char* LocalizeItemText(const char* group, const char* text) {
  if (text == nullptr || text[0] == '\0') return text;
  if (group == nullptr || group[0] == '\0') return Localize(text);
  const std::string key = std::string(group) + "." + EscapeKey(text);
  if (key.size() >= kItemKeySize) return text;  // keys of items are shorter
  EnsureTextInitialised();
  const RDB_Text found = LookupResource(nullptr, nullptr, key.c_str());
  return found ? InResultBuffer(found.get(), std::strlen(found.get())) : text;
}

#include "RDB_PlainEntry.h"

#include <cstddef>
#include <cstring>

#include "RDB_Bytes.h"
#include "RDB_Words.h"

namespace {

inline const char* SkipSpace(const char* at, const char* end) {
  while (at != end && static_cast<unsigned char>(*at) <= ' ' && RDB_IsSpace(*at)) ++at;
  return at;
}

// A backslash in front of these does not stand for the byte as it is.
bool IsSpecialEscape(char byte) {
  return byte == 'n' || byte == 't' || byte == 'r' || RDB_IsOctal(byte);
}

// The quote that closes, or null if there is none, or something before it that is not plain. `isName` becomes
// false at a dot or a backslash.
const char* CloseOfKey(const char* at, const char* end, bool& isName) {
  for (;;) {
    at = RDB_FindByte<'"', '\\', '.', '\0'>(at, end);
    if (at == end || *at == '\0') return nullptr;
    if (*at == '"') return at;
    isName = false;
    if (*at++ == '.') continue;
    if (at == end || *at == '\0' || IsSpecialEscape(*at)) return nullptr;
    ++at;
  }
}

// Behind the quote that opens, or null if something else than a separator stands before it. `close` is the
// quote that closes the key.
const char* BeginOfValue(const char* close, const char* end) {
  constexpr char kUsual[] = "\" : \"";
  constexpr std::ptrdiff_t kLength = sizeof kUsual - 1;
  if (end - close > kLength && std::memcmp(close, kUsual, kLength) == 0) return close + kLength;
  const char* at = SkipSpace(close + 1, end);
  if (at == end || (*at != ':' && *at != '=')) return nullptr;
  at = SkipSpace(at + 1, end);
  return at != end && *at == '"' ? at + 1 : nullptr;
}

const char* CloseOfValue(const char* at, const char* end) {
  at = RDB_FindByte<'"', '\\', '\0'>(at, end);
  return at != end && *at == '"' ? at : nullptr;
}

std::string_view Between(const char* begin, const char* end) {
  return {begin, static_cast<std::size_t>(end - begin)};
}

}  // namespace

bool RDB_PlainEntry::Read(const char* begin, const char* limit) {
  const char* at = SkipSpace(begin, limit);
  if (limit - at < 2 || *at != '"') return false;
  const char* const keyBegin = ++at;
  isName = *at != '*' && *at != '"';
  at = CloseOfKey(at, limit, isName);
  if (at == nullptr) return false;
  key = Between(keyBegin, at);
  const char* const valueBegin = BeginOfValue(at, limit);
  if (valueBegin == nullptr) return false;
  at = CloseOfValue(valueBegin, limit);
  if (at == nullptr || limit - at < 2 || !RDB_IsSpace(at[1])) return false;
  value = Between(valueBegin, at);
  end = at + 2;
  return true;
}

#include "RDB_KeySplitter.h"

#include "RDB_Hash.h"

namespace {

constexpr char kStarName[] = "*";
constexpr char kDotsName[] = ".";

bool StartsWithJustTwoDots(const char* key) {
  return key[0] == '.' && key[1] == '.' && key[2] != '.';
}

}  // namespace

RDB_KeySplitter::RDB_KeySplitter(char* key)
    : next_(key[0] == '.' && !StartsWithJustTwoDots(key) ? key + 1 : key), hasMore_(*next_ != '\0') {}

bool RDB_KeySplitter::Next(RDB_KeyPart& part) {
  if (!hasMore_) return false;
  if (IsAtDots()) {
    TakeDots(part);
  } else {
    TakeName(part);
  }
  return true;
}

bool RDB_KeySplitter::IsAtDots() const {
  return next_[0] == '.' && (next_[1] == '.' || next_[1] == '\0');
}

void RDB_KeySplitter::TakeDots(RDB_KeyPart& part) {
  while (*next_ == '.') ++next_;
  hasMore_ = *next_ != '\0';
  part = {kRDBDots, RDB_Hash(kDotsName, 1), 1, kDotsName};
}

void RDB_KeySplitter::TakeName(RDB_KeyPart& part) {
  char* const name = next_;
  const bool mayBeStar = *name == '*';
  char* const end = Unescape();
  const auto length = static_cast<std::size_t>(end - name);
  *end = '\0';
  const unsigned hash = RDB_Hash(name, length);
  if (mayBeStar && length == 1) {
    part = {kRDBStar, hash, length, kStarName};
  } else {
    part = {RDB_SlotOfHash(hash), hash, length, name};
  }
}

// From `next_` to behind the dot that ends the component; a dot as its first byte does not. Returns the end
// of the unescaped name.
char* RDB_KeySplitter::Unescape() {
  char* const begin = next_;
  char* end = begin;
  for (; *next_ != '\0'; ++next_) {
    if (*next_ == '.' && next_ != begin) {
      ++next_;
      return end;
    }
    if (*next_ == '\\' && *++next_ == '\0') break;
    *end++ = *next_;
  }
  hasMore_ = false;
  return end;
}

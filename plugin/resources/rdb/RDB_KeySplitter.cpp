#include "RDB_KeySplitter.h"

#include <cstring>

#include "RDB_Words.h"

namespace {

constexpr char kDotsName[] = ".";

bool StartsWithJustTwoDots(const char* key) {
  return key[0] == '.' && key[1] == '.' && key[2] != '.';
}

}  // namespace

RDB_KeySplitter::RDB_KeySplitter(char* key, std::size_t length)
    : next_(key[0] == '.' && !StartsWithJustTwoDots(key) ? key + 1 : key),
      end_(key + length),
      hasMore_(next_ != end_) {}

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
  hasMore_ = next_ != end_;
  part = {kRDBDots, RDB_Hash(kDotsName, 1), 1, kDotsName};
}

void RDB_KeySplitter::TakeName(RDB_KeyPart& part) {
  char* const name = next_;
  const bool mayBeStar = *name == '*';
  char* const end = Unescape();
  const auto length = static_cast<std::size_t>(end - name);
  *end = '\0';
  part = RDB_PartOfName({name, length});
  if (mayBeStar && length == 1) part.slot = kRDBStar;
}

// From `next_` to behind the dot that ends the component; a dot as its first byte does not. Returns the end
// of the unescaped name.
char* RDB_KeySplitter::Unescape() {
  char* end = next_;
  if (*next_ == '.') end = ++next_;
  for (;;) {
    const auto plain = static_cast<std::size_t>(RDB_FindByte<'.', '\\'>(next_, end_) - next_);
    if (end != next_) std::memmove(end, next_, plain);
    end += plain;
    next_ += plain;
    hasMore_ = next_ != end_;
    if (!hasMore_) return end;
    if (*next_++ == '.') return end;
    if (next_ != end_) *end++ = *next_++;
  }
}

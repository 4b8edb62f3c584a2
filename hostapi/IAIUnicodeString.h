// A string of the host as a value.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "AIUnicodeString.h"

namespace ai {

// Owns one host string. Everything but destruction throws ai::Error when the suite refuses, with
// kSPSuiteNotFoundError when the suite is not held. An empty string holds no host object until asked
// for one.
class UnicodeString {
 public:
  UnicodeString() noexcept = default;
  explicit UnicodeString(std::string_view bytes, AICharacterEncoding encoding = kAIUTF8CharacterEncoding);
  UnicodeString(const UnicodeString& other);
  UnicodeString(UnicodeString&& other) noexcept : string_(other.string_) { other.string_ = nullptr; }
  // Two, for a class with such a member would count as assigned without throwing if one took a value.
  UnicodeString& operator=(const UnicodeString& other);
  UnicodeString& operator=(UnicodeString&& other) noexcept;
  ~UnicodeString();

  std::size_t length() const;  // UTF-16 code units
  bool empty() const { return length() == 0; }
  std::string as_UTF8() const { return getAs(kAIUTF8CharacterEncoding); }
  std::string getAs(AICharacterEncoding encoding) const;

  // For suite calls. Owned by this object; out-parameters are filled through it.
  AIUnicodeStringHandle handle();
  // The same for a call that only reads.
  AIUnicodeStringHandle handle() const { return const_cast<UnicodeString*>(this)->handle(); }
  // Never makes one, so null for an empty string: for hosts that are handed a string in a record.
  AIUnicodeStringHandle existing() const noexcept { return string_; }

  friend bool operator==(const UnicodeString& a, const UnicodeString& b) {
    return a.as_UTF8() == b.as_UTF8();
  }
  friend bool operator!=(const UnicodeString& a, const UnicodeString& b) { return !(a == b); }

 private:
  AIUnicodeStringHandle string_ = nullptr;
};

}  // namespace ai

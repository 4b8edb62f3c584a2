#include "IAIUnicodeString.h"

#include <utility>

#include "AIError.h"

namespace ai {
namespace {

const AIUnicodeStringSuite& Suite() {
  if (sAIUnicodeString == nullptr) throw Error(kSPSuiteNotFoundError);
  return *sAIUnicodeString;
}

}  // namespace

UnicodeString::UnicodeString(std::string_view bytes, AICharacterEncoding encoding) {
  ThrowOnError(Suite().New(bytes.data(), bytes.size(), encoding, &string_));
}

UnicodeString::UnicodeString(const UnicodeString& other) {
  if (other.string_ == nullptr) return;
  const std::string bytes = other.as_UTF8();
  ThrowOnError(Suite().New(bytes.data(), bytes.size(), kAIUTF8CharacterEncoding, &string_));
}

UnicodeString& UnicodeString::operator=(const UnicodeString& other) {
  return *this = UnicodeString(other);
}

UnicodeString& UnicodeString::operator=(UnicodeString&& other) noexcept {
  UnicodeString taken(std::move(other));
  std::swap(string_, taken.string_);
  return *this;
}

UnicodeString::~UnicodeString() {
  if (string_ != nullptr && sAIUnicodeString != nullptr) sAIUnicodeString->Dispose(string_);
}

std::size_t UnicodeString::length() const {
  std::size_t units = 0;
  if (string_ != nullptr) ThrowOnError(Suite().GetLength(string_, &units));
  return units;
}

std::string UnicodeString::getAs(AICharacterEncoding encoding) const {
  if (string_ == nullptr) return {};
  const char* bytes = nullptr;
  std::size_t count = 0;
  ThrowOnError(Suite().GetBytes(string_, encoding, &bytes, &count));
  return std::string(bytes, count);
}

AIUnicodeStringHandle UnicodeString::handle() {
  if (string_ == nullptr) ThrowOnError(Suite().New(nullptr, 0, kAIUTF8CharacterEncoding, &string_));
  return string_;
}

}  // namespace ai

// Unicode strings of the host.
#pragma once

#include <cstddef>

#include "AITypes.h"

enum AICharacterEncoding : std::int32_t { kAIPlatformCharacterEncoding = 0, kAIUTF8CharacterEncoding = 1 };

constexpr char kAIUnicodeStringSuite[] = "AI Unicode String Suite";
constexpr std::int32_t kAIUnicodeStringSuiteVersion = 1009;

// A string belongs to whoever made it until Dispose. Bytes that are no valid text in the given encoding
// become U+FFFD.
struct AIUnicodeStringSuite {
  // `bytes` may be null when `count` is 0.
  AIErr (*New)(const char* bytes, std::size_t count, AICharacterEncoding encoding,
               AIUnicodeStringHandle* string);
  AIErr (*Dispose)(AIUnicodeStringHandle string);
  AIErr (*GetLength)(AIUnicodeStringHandle string, std::size_t* utf16Units);
  // The bytes in that encoding, NUL-terminated, valid until the string is changed, disposed of or asked
  // in another encoding. `count` (may be null) leaves out the NUL.
  AIErr (*GetBytes)(AIUnicodeStringHandle string, AICharacterEncoding encoding, const char** bytes,
                    std::size_t* count);
};

extern const AIUnicodeStringSuite* sAIUnicodeString;

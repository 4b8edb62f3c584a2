#include "FormatLocalized.h"

#include <cstdio>

#include "CopyUTF8.h"
#include "LookupResource.h"
#include "TextModules.h"
#include "TextState.h"

const char* FormatLocalized(const char* format, std::va_list arguments) {
  EnsureTextInitialised();
  const RDB_Text translation = LookupResource(nullptr, format, nullptr);
  char filled[kTextSize];  // an argument may be a text that Localize gave out
  // The check of formats holds translations to their keys' conversions.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
  const int length =
      std::vsnprintf(filled, sizeof filled, translation ? translation.get() : format, arguments);
#pragma GCC diagnostic pop
  const bool whole = length >= 0 && static_cast<std::size_t>(length) < sizeof filled;
  return whole ? InResultBuffer(filled, static_cast<std::size_t>(length))
               : CopyUTF8(TheTextState().result, filled, kTextSize);
}

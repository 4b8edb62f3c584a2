// A translated format, filled in.
#pragma once

#include <cstdarg>

// As by printf with the format's translation. The result lies in the buffer of Localize, cut to it.
[[gnu::format(printf, 1, 0)]] const char* FormatLocalized(const char* format, std::va_list arguments);

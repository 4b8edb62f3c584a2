// The text of the interface in the user's language.
#pragma once

// An English sentence in, its translation out, or the sentence itself where there is none. A translated
// format carries the same printf conversions in the same order. Null gives null. The result is valid
// until the next call: copy what is needed longer.
[[gnu::format_arg(1)]] const char* Localize(const char* text);

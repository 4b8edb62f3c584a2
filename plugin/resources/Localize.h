// The text of the interface in the user's language.
#pragma once

// An English sentence in, its translation out, or the sentence itself where there is none. A translated
// format carries the same printf conversions in the same order. Null gives null, and empty text itself.
// A translation lies in one buffer of 8,192 bytes that all of these and FormatLocalized share, cut to it
// if need be: copy what is needed longer than until the next call.
[[gnu::format_arg(1)]] const char* Localize(const char* text);

// The same, under the key `group` followed by the text as its last component; null or empty: by the text
// alone. `group` is a key, so its dots part components.
[[gnu::format_arg(2)]] const char* LocalizeItemText(const char* group, const char* text);

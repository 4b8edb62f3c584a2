// Alerts of the host with a translated text.
#pragma once

// `format` is an English sentence. It is translated and then, if it holds a "%", filled in as by printf;
// text beyond 511 bytes is cut. Both return when the user has answered. Nothing comes up, and nobody is told,
// while the user must not be asked anything. When the host refuses the text, ai::Error is thrown.
[[gnu::format(printf, 1, 2)]] void ErrorAlert(const char* format, ...);
[[gnu::format(printf, 1, 2)]] void MessageAlert(const char* format, ...);

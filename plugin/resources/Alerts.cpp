#include "Alerts.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "AIUser.h"
#include "CopyUTF8.h"
#include "IAIUnicodeString.h"
#include "Localize.h"
#include "UserInteraction.h"

namespace {

constexpr std::size_t kAlertSize = 512;

using ShowText = AIErr (*AIUserSuite::*)(AIUnicodeStringHandle text);

[[gnu::format(printf, 2, 0)]] void Show(ShowText show, const char* format, std::va_list arguments) {
  if (sAIUser == nullptr || !IsUserInteractionAllowed()) return;
  char filled[kAlertSize];
  const char* text = filled;
  if (std::strchr(format, '%') == nullptr) {
    text = Localize(format);
  } else {
    char whole[kAlertSize];
    // Both callers have started the list. NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized)
    std::vsnprintf(whole, sizeof whole, Localize(format), arguments);
    CopyUTF8(filled, whole, sizeof filled);  // leaves out a character that was cut
  }
  const ai::UnicodeString shown(text);
  (sAIUser->*show)(shown.handle());
}

}  // namespace

void ErrorAlert(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  Show(&AIUserSuite::ErrorAlert, format, arguments);
  va_end(arguments);
}

void MessageAlert(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  Show(&AIUserSuite::MessageAlert, format, arguments);
  va_end(arguments);
}

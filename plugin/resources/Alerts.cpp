#include "Alerts.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "AIError.h"
#include "AIUser.h"
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
    // Both callers have started the list. NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized)
    std::vsnprintf(filled, sizeof filled, Localize(format), arguments);
  }
  try {
    const ai::UnicodeString shown(text);
    (sAIUser->*show)(shown.handle());
  } catch (const ai::Error&) {  // NOLINT(bugprone-empty-catch): without text there is nothing to show
  }
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

#include "Display.h"

#include <cstdlib>
#include <string_view>

namespace host {
namespace {

std::string_view variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : std::string_view();
}

bool startsWith(std::string_view text, std::string_view beginning) {
  return text.substr(0, beginning.size()) == beginning;
}

}  // namespace

bool hasDisplay() {
  const bool x11 = !variable("DISPLAY").empty();
  const bool wayland = !variable("WAYLAND_DISPLAY").empty();
  const std::string_view platform = variable("QT_QPA_PLATFORM");
  if (platform.empty()) return x11 || wayland;
  if (startsWith(platform, "xcb")) return x11;
  if (startsWith(platform, "wayland")) return wayland;
  return true;
}

}  // namespace host

#include "Display.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace host {
namespace {

void set(const char* name, const char* value) {
  if (value != nullptr) {
    setenv(name, value, 1);
  } else {
    unsetenv(name);
  }
}

TEST(Display, FollowsTheEnvironment) {
  struct Row {
    const char* x11;
    const char* wayland;
    const char* platform;
    bool has;
  };
  const std::vector<Row> table{{nullptr, nullptr, nullptr, false},   {"", "", "", false},
                               {":0", nullptr, nullptr, true},       {nullptr, "wayland-0", nullptr, true},
                               {nullptr, nullptr, "xcb", false},     {nullptr, "wayland-0", "xcb", false},
                               {":0", nullptr, "xcb:x=1", true},     {":0", nullptr, "wayland-egl", false},
                               {nullptr, nullptr, "offscreen", true}};
  const char* former = std::getenv("QT_QPA_PLATFORM");
  const std::string platform = former != nullptr ? former : "";
  for (std::size_t i = 0; i < table.size(); ++i) {
    set("DISPLAY", table[i].x11);
    set("WAYLAND_DISPLAY", table[i].wayland);
    set("QT_QPA_PLATFORM", table[i].platform);
    EXPECT_EQ(hasDisplay(), table[i].has) << "row " << i;
  }
  set("QT_QPA_PLATFORM", platform.empty() ? nullptr : platform.c_str());
}

}  // namespace
}  // namespace host

// What the plug-in asks of the operating system. The host's process provides these functions.
#pragma once

#include <cstdint>

constexpr std::uint32_t kShiftKeyModifier = 0x200;
constexpr std::uint32_t kOptionKeyModifier = 0x800;
constexpr std::uint32_t kCommandKeyModifier = 0x100;

// Modifier keys held down now, a sum of the bits above.
std::uint32_t GetCurrentKeyModifiers();

// One mouse or key event, as items see it.
#pragma once

#include <cstdint>
#include <memory>

#include "ADMRect.h"

namespace qRVADM {

enum TrackerAction : int {
  kDoubleClickAction = 1000,
  kToolTipAction = 1001,  // of list rows
  kLeftDownAction = 2,
  kMiddleDownAction = 3,
  kRightDownAction = 4,
  kLeftUpAction = -2,
  kMiddleUpAction = -3,
  kRightUpAction = -4,
  kDragAction = 1,   // moved with the left button held
  kMoveAction = -1,  // moved without it
  kKeyAction = -15,  // press or release
  kSpaceUpAction = -9,
  kWheelAction = 12,  // the turn, in eighths of a degree: vertical in `x`, horizontal in `y`
};

// Bits of ADMTracker::modifiers.
enum TrackerModifier : std::uint32_t {
  kLeftButtonDown = 4,
  kMiddleButtonDown = 8,
  kRightButtonDown = 16,
  kShiftDown = 0x20,
  kControlDown = 0x40,
  kAltDown = 0x80,
  kMetaDown = 0x100,
  kSpaceDown = 512,
};

// Keys that items have a use for.
enum TrackerKey : std::uint32_t {
  kEscapeKey = 27,
  kSpaceKey = 32,
  kZeroKey = 48,
  kKeypadZeroKey = 224,
  kShiftKey = 241,
  kControlKey = 244,
};

// Copies share whether the event was handled.
struct ADMTracker {
  int action = 0;  // a TrackerAction
  std::uint32_t modifiers = 0;
  std::uint32_t key = 0;  // a TrackerKey, or 0 for any other key
  int x = 0;              // pixels of the item
  int y = 0;
  std::shared_ptr<bool> handled = std::make_shared<bool>(false);

  bool IsDoubleClick() const { return action == kDoubleClickAction; }
  bool IsMouseDown() const { return action == kDoubleClickAction || action == kLeftDownAction; }
  bool IsMouseUp() const { return action == kDoubleClickAction || action == kLeftUpAction; }
  ADMPoint GetPoint() const { return {x, y}; }
  bool IsHandled() const { return *handled; }
};

}  // namespace qRVADM

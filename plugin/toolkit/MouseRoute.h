// How an item's Track sees a mouse event before the widget does.
#pragma once

#include <Qt>
#include <cstdint>

#include "ADMTracker.h"

class QMouseEvent;

namespace qRVADM {

class RVADM_Item;

// Bits of TrackerModifier.
std::uint32_t KeyModifiers(Qt::KeyboardModifiers modifiers);
std::uint32_t ButtonModifiers(Qt::MouseButtons buttons);

// At the event's place, with the keys that are held as modifiers.
ADMTracker TrackerOf(const QMouseEvent& event, int action);

// Shows the item the event in a context of the plug-in's own. False if the item wants no more of the event or
// is gone; either way nothing of it may be touched after that.
bool TrackInContext(RVADM_Item& item, const ADMTracker& tracker);
bool TrackPress(RVADM_Item& item, const QMouseEvent& event);  // kLeftDownAction, whatever the button
bool TrackRelease(RVADM_Item& item, const QMouseEvent& event);
// kDragAction, whether or not a button is held; the modifiers are the buttons, without the keys.
bool TrackMove(RVADM_Item& item, const QMouseEvent& event);

}  // namespace qRVADM

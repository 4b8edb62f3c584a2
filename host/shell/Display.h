// Whether a window could be seen.
#pragma once

namespace host {

// True if the environment names a display, or a platform of Qt that needs none. Whether the display answers
// shows only when it is used.
bool hasDisplay();

}  // namespace host

// The control style and the palette of the present theme, for the whole process.
#pragma once

namespace host {

// Idle if there is no application with widgets, or if it has this look already.
void bringLook();

}  // namespace host

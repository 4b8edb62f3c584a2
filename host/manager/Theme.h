// The brightness of the interface.
#pragma once

namespace host {

enum class Theme { Light, Dark };

// Gives all windows of the process the look of the theme at once: the control style and its palette. Plug-ins
// hear of it through the host's brightness notifier. Before there is an application it only takes note; the
// first dialog or the next call then brings the look.
void setTheme(Theme theme);
Theme theme();

}  // namespace host

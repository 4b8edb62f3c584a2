// Where the window is on the screen.
#pragma once

class QWidget;

namespace host {

class WindowSettings;

// Puts a window that is not shown yet where it was last time, as far as the screen of today has that place.
void takePlace(QWidget& window, const WindowSettings& settings);
void rememberPlace(const QWidget& window, WindowSettings& settings);

}  // namespace host

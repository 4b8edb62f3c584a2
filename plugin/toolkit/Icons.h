// Icons of the plug-in by resource id.
#pragma once

#include <QIcon>

namespace qRVADM {

// Adds the picture for a BrightnessMode, in single resolution and, where the application runs on a finer
// display, in that display's too. False if there is none in single resolution. Main thread; the application
// must stand.
bool AddIconPixmaps(QIcon& icon, int id, int brightnessMode, QIcon::Mode mode, QIcon::State state);

// In the host's brightness of now. Null if there is no such picture.
QIcon GetIcon(int id);

}  // namespace qRVADM

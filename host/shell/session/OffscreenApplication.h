// Qt without a display.
#pragma once

namespace host {

// Makes a QApplication on the offscreen platform unless there is an application already. It lasts until
// main() has returned, and ends before anything static does. To be called in the main thread.
void ensureApplication();

}  // namespace host

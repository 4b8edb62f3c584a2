// Qt without a display.
#pragma once

namespace host {

// Makes a QApplication on the offscreen platform unless there is an application already. It lasts to the end
// of the process.
void ensureApplication();

}  // namespace host

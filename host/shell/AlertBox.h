// Alerts as boxes over the window.
#pragma once

#include "Host.h"

class QWidget;

namespace host {

// Returns when the user has answered. A text that is too long for the screen shows its beginning, and the
// rest on demand. `parent` is the window that waits for the answer; null: none does.
void showAlertBox(const Alert& alert, QWidget* parent);

}  // namespace host

// Alerts where there is no window to show them.
#pragma once

#include <string>

#include "Host.h"

namespace host {

// "message: " or "error: " and the text, in one line without its end.
std::string alertLine(const Alert& alert);

}  // namespace host

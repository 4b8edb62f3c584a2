// The command Export of the window.
#pragma once

#include <string>

namespace host {

struct WindowParts;

// Writes the current drawing to `output` in the format of its name. For a PDF the user is asked how; the
// steps that he chooses are one undo step.
void exportFromWindow(const WindowParts& parts, const std::string& output);

}  // namespace host

// The mark tool of the last session.
#pragma once

#include <cstdint>

namespace Vandrell::Corvane {

// Index of the mark tool chosen last, in this session or an earlier one; 0 if none was.
std::int32_t StoredMarkTool();

// Makes that tool the visible member of its group in the palette without leaving it selected. A startup
// action; `plugin` is the CutPlugin, null does nothing.
void RestoreMarkTool(void* plugin);

}  // namespace Vandrell::Corvane

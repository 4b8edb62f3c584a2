// A path of the host as text in a buffer.
#pragma once

#include <cstddef>

#include "IAIFilePath.h"

constexpr AIErr kPathTooLongErr = ErrorCode("SMAL");

// The full path as NUL-terminated UTF-8 in a buffer of `size` bytes. kPathTooLongErr if it does not fit,
// which leaves the buffer alone; otherwise what the host answers when it refuses.
AIErr CopyFullPath(const ai::FilePath& path, char* buffer, std::size_t size);

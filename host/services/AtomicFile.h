// Files read whole and replaced whole.
#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace host {

// The bytes of a file. Nullopt if it can't be read; `reason` then gets a clause without a full stop, such
// as "there is no such file". A file of more than `limit` bytes is not read.
std::optional<std::string> readFile(const std::string& file, std::string* reason = nullptr,
                                    std::size_t limit = std::numeric_limits<std::size_t>::max());

// Writes a temporary file, brings it to the disk and puts it in the target's place, so that the target is at
// any moment either the old file or the new one. Where the file system can write files without a name, not
// even a killed program leaves anything else behind. A file that was there keeps its permissions; a symbolic
// link stays one, and what it leads to is replaced. A device or a pipe is written to as it is. Empty, or a
// clause on why not: the old file is then whole and no temporary file is left.
std::string replaceFile(const std::string& file, std::string_view bytes);

}  // namespace host

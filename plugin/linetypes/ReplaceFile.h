// A file replaced as a whole.
#pragma once

#include <string>
#include <string_view>

namespace Vandrell::Corvane {

// Writes the bytes beside the file, brings them to the disk and puts them in its place: at any moment there
// is the old file or the new one. The file keeps its permissions, and a link to it stays one. False if it did
// not work, which leaves the old file and nothing beside it; also for what may not be written and what is no
// plain file.
bool ReplaceFile(const std::string& path, std::string_view bytes);

}  // namespace Vandrell::Corvane

// Values of a file in messages about it.
#pragma once

#include <string>
#include <string_view>

namespace host {

// In double quotes, on one line, and cut short if it is long.
std::string quoted(std::string_view text);

}  // namespace host

// Unicode normal forms.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host {

// The text in normal form C (Unicode Standard Annex 15). Nullopt if it is not well-formed UTF-8.
std::optional<std::string> normalFormC(std::string_view text);

}  // namespace host

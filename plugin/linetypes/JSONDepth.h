// How deep a text in JSON is nested.
#pragma once

#include <cstddef>
#include <string_view>

namespace Vandrell::Corvane {

// The most arrays and objects that are open at one place. What stands in strings does not count. Of a text
// that is no JSON it is at least as deep as a parser gets before it finds out.
std::size_t JSONDepth(std::string_view text);

}  // namespace Vandrell::Corvane

// One line of the table of resources: "16201.png folder.png".
#pragma once

#include <optional>
#include <string_view>

namespace qRVADM {

struct ResourceLine {
  int id;
  std::string_view type;  // 1 to 9 bytes
  std::string_view name;  // 1 to 127 bytes
};

// Reads what sscanf reads with "%d.%9s %127s" in the C locale, up to a NUL or the end of the text. Nothing
// unless all three are there, nor for an id beyond int. The parts lie in the text.
std::optional<ResourceLine> ParseResourceLine(std::string_view text);

}  // namespace qRVADM

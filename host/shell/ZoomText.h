// Zoom as people write it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host {

// Such as "66.7 %" of View::zoom.
std::string zoomText(double zoom);
// The zoom that was written, with the sign or without, with point or comma. Nullopt for what is none.
std::optional<double> zoomIn(std::string_view text);

}  // namespace host

// References such as `url(#clip1)`.
#pragma once

#include <optional>
#include <string_view>

namespace host {

struct SvgUrl {
  std::string_view target;    // without quotes, such as "#clip1"
  std::string_view fallback;  // what stands behind the bracket, without blanks round it
  // The id in this file; empty if the target lies elsewhere.
  std::string_view id() const { return !target.empty() && target[0] == '#' ? target.substr(1) : ""; }
};

// Nullopt if the text is no `url(...)`.
std::optional<SvgUrl> parseUrl(std::string_view text);

}  // namespace host

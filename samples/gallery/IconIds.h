// The pictures of the gallery's bundle.
#pragma once

namespace gallery {

constexpr int kStarIcon = 16200;
constexpr int kSelectedStarIcon = 16201;
constexpr int kPanelIcon = 16202;

}  // namespace gallery

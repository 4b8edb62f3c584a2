// Path data: the value of `d`, and the points of polylines.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "SvgOutline.h"

namespace host {

// Why a value was not read to its end.
struct SvgFault {
  std::string reason;  // a clause without a full stop, such as "a number is missing"
  std::size_t offset;  // bytes from the start of the value
};

// Appends what the data draw, up to the fault if there is one, as browsers do.
// https://www.w3.org/TR/SVG2/paths.html#PathDataBNF
std::optional<SvgFault> readPathData(std::string_view data, SvgOutline& outline);

// Appends a polyline through the points, closed or not.
std::optional<SvgFault> readPoints(std::string_view points, bool close, SvgOutline& outline);

}  // namespace host

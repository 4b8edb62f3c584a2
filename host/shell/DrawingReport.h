// What a drawing holds, in words or as JSON.
#pragma once

#include <string>
#include <vector>

#include "Preflight.h"
#include "SvgDrawing.h"

namespace host {

// Lengths in millimetres in words, in points in JSON; both end with a line break. `findings` are of a
// preflight; null if none was made.
std::string reportAsText(const SvgDrawing& drawing, const std::string& name,
                         const std::vector<Finding>* findings = nullptr);
std::string reportAsJson(const SvgDrawing& drawing, const std::string& name,
                         const std::vector<Finding>* findings = nullptr);

// A remark in one line, such as: line 3, <path> "p1": the path data is broken
std::string remarkLine(const SvgRemark& remark);

// A number as short as it reads back to the same, such as "0.1".
std::string shortNumber(double value);

}  // namespace host

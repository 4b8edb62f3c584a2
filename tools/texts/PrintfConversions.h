// The placeholders of printf formats.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace texts {

// The conversions of a format in their order, each as it is written, "%%" among them ("%s", "%-5.2lf"). None
// if a "%" does not begin one: numbered arguments and "%n" count as no conversions.
std::optional<std::vector<std::string>> PrintfConversions(std::string_view format);

}  // namespace texts

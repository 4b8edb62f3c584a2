// The text of a `style` attribute, read and changed without disturbing the rest of it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host {

// The value of the last declaration of a property, without blanks around it and without "!important".
std::optional<std::string_view> styleProperty(std::string_view style, std::string_view name);

// The text with the property set: in the place of its last declaration, "!important" kept, or at the end.
std::string withStyleProperty(std::string_view style, std::string_view name, std::string_view value);

// The text without any declaration of the property.
std::string withoutStyleProperty(std::string_view style, std::string_view name);

}  // namespace host

// Text as it has to stand in XML.
#pragma once

#include <string>
#include <string_view>

namespace host {

// UTF-8 as an attribute's value between quotes of this kind. Line breaks and tabs become character
// references, and what XML can't hold becomes U+FFFD.
std::string escapedAttribute(std::string_view text, char quote = '"');

// Appends ` name="value"`.
void appendAttribute(std::string& tag, std::string_view name, std::string_view value);

}  // namespace host

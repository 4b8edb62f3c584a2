#include "SvgXmlText.h"

#include "Utf8Characters.h"

namespace host {
namespace {

void appendEscaped(std::string& text, char32_t c, char quote) {
  switch (c) {
    case '&':
      text += "&amp;";
      return;
    case '<':
      text += "&lt;";
      return;
    case '\t':
    case '\n':
    case '\r':
      text += "&#" + std::to_string(c) + ";";
      return;
    case '"':
    case '\'':
      if (c != static_cast<char32_t>(quote)) break;
      text += c == '"' ? "&quot;" : "&apos;";
      return;
    default:
      break;
  }
  const bool allowed = c >= 0x20 && c != 0xFFFE && c != 0xFFFF;
  appendUtf8(text, allowed ? c : kReplacementCharacter);
}

}  // namespace

std::string escapedAttribute(std::string_view text, char quote) {
  std::string escaped;
  escaped.reserve(text.size());
  while (!text.empty()) appendEscaped(escaped, takeUtf8(text), quote);
  return escaped;
}

void appendAttribute(std::string& tag, std::string_view name, std::string_view value) {
  tag += ' ';
  tag += name;
  tag += "=\"";
  tag += escapedAttribute(value);
  tag += '"';
}

}  // namespace host

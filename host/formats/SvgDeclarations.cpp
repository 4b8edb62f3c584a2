#include "SvgDeclarations.h"

#include <algorithm>

#include "SvgFont.h"
#include "SvgScanner.h"

namespace host {
namespace {

// Takes "!important" off the end.
bool takeImportant(std::string_view& value) {
  const std::size_t mark = value.rfind('!');
  if (mark == std::string_view::npos) return false;
  if (!equalsIgnoringCase(withoutBlanksAround(value.substr(mark + 1)), "important")) return false;
  value = withoutBlanksAround(value.substr(0, mark));
  return true;
}

// Behind the quote that ends the string which begins at `at`, or the end.
std::size_t behindString(std::string_view text, std::size_t at) {
  const std::size_t end = text.find(text[at], at + 1);
  return end == std::string_view::npos ? text.size() : end + 1;
}

// The ";" that ends the declaration at `at`, outside of quotes and brackets, or the end.
std::size_t endOfDeclaration(std::string_view text, std::size_t at) {
  int depth = 0;
  while (at < text.size()) {
    const char c = text[at];
    if (c == '"' || c == '\'') {
      at = behindString(text, at);
      continue;
    }
    if (text.substr(at, 2) == "/*") {
      at = std::min(text.find("*/", at + 2), text.size() - 2) + 2;
      continue;
    }
    if (c == ';' && depth == 0) break;
    if (c == '(') ++depth;
    if (c == ')' && depth > 0) --depth;
    ++at;
  }
  return at;
}

// Comments may stand where blanks may.
std::string_view withoutCommentsAround(std::string_view text) {
  text = withoutBlanksAround(text);
  while (text.substr(0, 2) == "/*") {
    const std::size_t end = text.find("*/", 2);
    text = end == std::string_view::npos ? std::string_view() : withoutBlanksAround(text.substr(end + 2));
  }
  while (text.size() >= 4 && text.substr(text.size() - 2) == "*/") {
    const std::size_t begin = text.rfind("/*", text.size() - 3);
    if (begin == std::string_view::npos) break;
    text = withoutBlanksAround(text.substr(0, begin));
  }
  return text;
}

}  // namespace

std::optional<SvgDeclaration> SvgDeclarationReader::next() {
  while (at_ < text_.size()) {
    const std::size_t end = endOfDeclaration(text_, at_);
    const std::string_view whole = withoutCommentsAround(text_.substr(at_, end - at_));
    at_ = end + 1;
    const std::size_t colon = whole.find(':');
    if (colon == std::string_view::npos) continue;
    const auto property = propertyNamedInAnyCase(withoutCommentsAround(whole.substr(0, colon)));
    if (!property) continue;
    std::string_view value = withoutCommentsAround(whole.substr(colon + 1));
    const bool important = takeImportant(value);
    return SvgDeclaration{*property, important, value};
  }
  return std::nullopt;
}

void SvgDeclaredValues::declareShorthand(SvgProperty property, std::string_view value, std::uint64_t weight) {
  const auto declareLonghand = [&](SvgProperty longhand, std::string_view part, std::string_view initial) {
    declare(longhand, part.empty() ? initial : part, weight);
  };
  if (property == SvgProperty::Marker) {
    declareLonghand(SvgProperty::MarkerStart, value, "none");
    declareLonghand(SvgProperty::MarkerMid, value, "none");
    declareLonghand(SvgProperty::MarkerEnd, value, "none");
  } else if (const auto font = parseFontShorthand(value)) {
    declareLonghand(SvgProperty::FontStyle, font->style, "normal");
    declareLonghand(SvgProperty::FontWeight, font->weight, "normal");
    declareLonghand(SvgProperty::FontSize, font->size, "medium");
    declareLonghand(SvgProperty::FontFamily, font->family, "");
  }
}

}  // namespace host

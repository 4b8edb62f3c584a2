#include "SvgStyleText.h"

#include "SvgScanner.h"

namespace host {
namespace {

struct Declaration {
  std::size_t begin;  // of the name
  std::size_t nameEnd;
  std::size_t valueBegin;
  std::size_t valueEnd;  // before blanks, and before "!important"
  std::size_t end;       // behind the semicolon, if there is one
  bool hasColon;
};

// Behind a string, a comment or an escape that begins at `at`, or behind the one character there.
std::size_t skipOne(std::string_view text, std::size_t at) {
  const char c = text[at];
  if (c == '\\') return std::min(at + 2, text.size());
  if (c == '/' && text.substr(at, 2) == "/*") {
    const std::size_t end = text.find("*/", at + 2);
    return end == std::string_view::npos ? text.size() : end + 2;
  }
  if (c != '"' && c != '\'') return at + 1;
  for (++at; at < text.size() && text[at] != c; ++at) {
    if (text[at] == '\\') ++at;
  }
  return std::min(at + 1, text.size());
}

std::size_t findOutside(std::string_view text, char wanted, std::size_t at) {
  int depth = 0;
  while (at < text.size()) {
    if (text[at] == wanted && depth == 0) return at;
    if (text[at] == '(') ++depth;
    if (text[at] == ')' && depth > 0) --depth;
    at = skipOne(text, at);
  }
  return text.size();
}

std::size_t skipFiller(std::string_view text, std::size_t at) {
  while (at < text.size()) {
    const bool comment = text.substr(at, 2) == "/*";
    if (!comment && text[at] != ';' && !isSvgBlank(text[at])) break;
    at = skipOne(text, at);
  }
  return at;
}

std::size_t trimEnd(std::string_view text, std::size_t begin, std::size_t end) {
  while (end > begin && isSvgBlank(text[end - 1])) --end;
  return end;
}

std::optional<Declaration> declarationFrom(std::string_view text, std::size_t at) {
  Declaration found{};
  found.begin = skipFiller(text, at);
  if (found.begin == text.size()) return std::nullopt;
  const std::size_t semicolon = findOutside(text, ';', found.begin);
  const std::size_t colon = std::min(text.find(':', found.begin), semicolon);
  found.end = std::min(semicolon + 1, text.size());
  found.hasColon = colon < semicolon;
  found.nameEnd = trimEnd(text, found.begin, colon);
  found.valueBegin = std::min(colon + 1, semicolon);
  while (found.valueBegin < semicolon && isSvgBlank(text[found.valueBegin])) ++found.valueBegin;
  const std::size_t important = std::min(findOutside(text, '!', found.valueBegin), semicolon);
  found.valueEnd = trimEnd(text, found.valueBegin, important);
  return found;
}

// What lacks its colon declares nothing.
bool names(std::string_view text, const Declaration& declaration, std::string_view name) {
  return declaration.hasColon &&
         equalsIgnoringCase(text.substr(declaration.begin, declaration.nameEnd - declaration.begin), name);
}

std::optional<Declaration> lastOf(std::string_view style, std::string_view name) {
  std::optional<Declaration> last;
  std::size_t at = 0;
  while (const auto declaration = declarationFrom(style, at)) {
    if (names(style, *declaration, name)) last = declaration;
    at = declaration->end;
  }
  return last;
}

}  // namespace

std::optional<std::string_view> styleProperty(std::string_view style, std::string_view name) {
  const auto declaration = lastOf(style, name);
  if (!declaration) return std::nullopt;
  return style.substr(declaration->valueBegin, declaration->valueEnd - declaration->valueBegin);
}

std::string withStyleProperty(std::string_view style, std::string_view name, std::string_view value) {
  std::string text(style);
  if (const auto declaration = lastOf(style, name)) {
    return text.replace(declaration->valueBegin, declaration->valueEnd - declaration->valueBegin, value);
  }
  text.erase(trimEnd(text, 0, text.size()));
  const bool ended = !text.empty() && text.back() == ';';
  if (!text.empty() && !ended) text += ';';
  text.append(name).append(":").append(value);
  if (ended) text += ';';
  if (styleProperty(text, name) == value) return text;
  // Something that is never closed would swallow it.
  return std::string(name).append(":").append(value).append(";").append(style);
}

std::string withoutStyleProperty(std::string_view style, std::string_view name) {
  std::string text;
  std::size_t at = 0;
  std::size_t kept = 0;
  while (const auto declaration = declarationFrom(style, at)) {
    at = declaration->end;
    if (!names(style, *declaration, name)) continue;
    text += style.substr(kept, declaration->begin - kept);
    kept = at;
    while (kept < style.size() && isSvgBlank(style[kept])) ++kept;
  }
  text += style.substr(kept);
  text.erase(trimEnd(text, 0, text.size()));
  return text;
}

}  // namespace host

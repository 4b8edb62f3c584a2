#include "SvgUrl.h"

#include "SvgScanner.h"

namespace host {

std::optional<SvgUrl> parseUrl(std::string_view text) {
  SvgScanner scanner(withoutBlanksAround(text));
  if (!equalsIgnoringCase(scanner.identifier(), "url") || !scanner.take('(')) return std::nullopt;
  scanner.skipBlanks();
  SvgUrl url;
  const char quote = scanner.peek();
  if (quote == '"' || quote == '\'') {
    scanner.next();
    url.target = withoutBlanksAround(scanner.until(quote == '"' ? "\"" : "'"));
    if (!scanner.take(quote)) return std::nullopt;
    scanner.skipBlanks();
  } else {
    url.target = withoutBlanksAround(scanner.until(")"));
  }
  if (!scanner.take(')')) return std::nullopt;
  url.fallback = withoutBlanksAround(scanner.rest());
  return url;
}

}  // namespace host

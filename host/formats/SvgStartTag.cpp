#include "SvgStartTag.h"

#include <algorithm>

namespace host {
namespace {

bool isBlank(char16_t unit) {
  return unit == ' ' || unit == '\t' || unit == '\n' || unit == '\r';
}

bool endsName(char16_t unit) {
  return isBlank(unit) || unit == '=' || unit == '>' || unit == '/' || unit == u'\0';
}

}  // namespace

SvgStartTag::SvgStartTag(std::string_view bytes, const SvgEncoding& encoding, std::size_t begin)
    : bytes_(bytes),
      encoding_(encoding),
      step_(encoding.unitSize()),
      nameBegin_(begin + step_),
      nameEnd_(skipName(nameBegin_)),
      at_(nameEnd_) {}

std::optional<SvgRawAttribute> SvgStartTag::next() {
  SvgRawAttribute found{};
  found.outerBegin = at_;
  found.nameBegin = skipBlanks(at_);
  found.nameEnd = skipName(found.nameBegin);
  if (found.nameEnd == found.nameBegin) return std::nullopt;
  const std::size_t quoteAt = skipBlanks(skipBlanks(found.nameEnd) + step_);  // over the "="
  found.quote = static_cast<char>(unit(quoteAt));
  found.valueBegin = quoteAt + step_;
  found.valueEnd = find(unit(quoteAt), found.valueBegin);
  if (found.valueEnd >= bytes_.size()) return std::nullopt;
  at_ = found.valueEnd + step_;
  found.outerEnd = at_;
  return found;
}

std::size_t SvgStartTag::skipBlanks(std::size_t offset) const {
  while (isBlank(unit(offset))) offset += step_;
  return offset;
}

std::size_t SvgStartTag::skipName(std::size_t offset) const {
  while (!endsName(unit(offset))) offset += step_;
  return offset;
}

std::size_t SvgStartTag::find(char16_t wanted, std::size_t offset) const {
  if (step_ == 1) return std::min(bytes_.find(static_cast<char>(wanted), offset), bytes_.size());
  while (offset < bytes_.size() && unit(offset) != wanted) offset += step_;
  return std::min(offset, bytes_.size());
}

}  // namespace host

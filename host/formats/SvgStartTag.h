// Walks a start tag as it stands in the bytes. The tag is known to be well-formed.
#pragma once

#include <optional>
#include <string_view>

#include "SvgEncoding.h"

namespace host {

struct SvgRawAttribute {   // offsets into the file
  std::size_t outerBegin;  // the blanks before the name
  std::size_t nameBegin;
  std::size_t nameEnd;
  std::size_t valueBegin;  // between the quotes
  std::size_t valueEnd;
  std::size_t outerEnd;  // behind the closing quote
  char quote;
};

class SvgStartTag {
 public:
  // `begin` is the offset of the tag's "<". Bytes and encoding must outlive the walk.
  SvgStartTag(std::string_view bytes, const SvgEncoding& encoding, std::size_t begin);

  std::size_t nameBegin() const { return nameBegin_; }
  std::size_t nameEnd() const { return nameEnd_; }
  std::optional<SvgRawAttribute> next();  // nullopt behind the last one
  // Behind the name or the last attribute that next() gave.
  std::size_t end() const { return at_; }

 private:
  char16_t unit(std::size_t offset) const { return encoding_.unitAt(bytes_, offset); }
  std::size_t skipBlanks(std::size_t offset) const;
  std::size_t skipName(std::size_t offset) const;
  std::size_t find(char16_t wanted, std::size_t offset) const;

  std::string_view bytes_;
  const SvgEncoding& encoding_;
  std::size_t step_;
  std::size_t nameBegin_;
  std::size_t nameEnd_;
  std::size_t at_;
};

}  // namespace host

// What elements and style sheets say about a property, as far as a writer has to know: not the cascade,
// only whether anything is said at all.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "SvgSource.h"

namespace host {

class SvgDeclared {
 public:
  explicit SvgDeclared(const SvgSource& source);

  // As the element's own `style`, or else its attribute, sets it. The view lives as long as the source.
  std::optional<std::string_view> on(NodeIndex element, std::string_view property) const;
  // The same for the innermost of the element and those round it that sets it.
  std::optional<std::string_view> inherited(NodeIndex element, std::string_view property) const;
  // May a rule of a style sheet set it?
  bool sheetSets(std::string_view property) const { return sheets_.find(property) != std::string::npos; }
  bool hasSheet() const { return !sheets_.empty(); }

 private:
  const SvgSource& source_;
  std::string sheets_;
};

}  // namespace host

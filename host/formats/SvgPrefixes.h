// The prefixes that new names are written with, and where those that the file lacks are declared.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "SvgSource.h"

namespace host {

// A new element that can declare what it and its content need; the root element is always there.
using SvgScope = std::size_t;
constexpr SvgScope kRootScope = 0;
constexpr SvgScope kNoScope = static_cast<SvgScope>(-1);

class SvgPrefixes {
 public:
  explicit SvgPrefixes(const SvgSource& source) : source_(source), needed_(1) {}

  SvgScope newScope();
  // The name of an attribute, or of an element that is not SVG, in an element of the file or new inside
  // it. If no prefix is bound there, `scope` has to declare one.
  std::string name(NodeIndex inside, XmlNamespace nameSpace, std::string_view localName, SvgScope scope);
  // The name of an SVG element that is new inside an element of the file.
  std::string elementName(NodeIndex inside, std::string_view localName) const;

  // Final once all names are made: ` xmlns:ch="..."` for each namespace that a scope has to declare. What
  // several need the root element declares, so that a single new layer leaves it alone.
  std::string declarations(SvgScope scope) const;

 private:
  std::string prefixOf(XmlNamespace nameSpace);
  bool isDeclaredByRoot(XmlNamespace nameSpace) const;

  const SvgSource& source_;
  std::vector<std::set<XmlNamespace>> needed_;  // by scope
  std::map<XmlNamespace, std::string> chosen_;
};

}  // namespace host

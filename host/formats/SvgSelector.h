// Selectors of style sheets.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "SvgSource.h"

namespace host {

class SvgScanner;

// One selector such as `svg > g.cut path#a`: compounds joined by "inside of" or "child of". All views
// point into the style sheet.
class SvgSelector {
 public:
  // Nullopt for a selector of another kind: with a pseudo-class, an attribute or a sibling.
  static std::optional<SvgSelector> parse(std::string_view text);

  bool matches(const SvgSource& source, NodeIndex element) const;
  std::uint32_t specificity() const { return specificity_; }
  // What an element must have to be worth a closer look; the empty ones say nothing.
  std::string_view subjectId() const { return compounds_.back().id; }
  std::string_view subjectClass() const;
  std::string_view subjectType() const { return compounds_.back().type; }

 private:
  struct Compound {
    std::string_view type;  // empty: any
    std::string_view id;
    std::vector<std::string_view> classes;
    bool childOfPrevious = false;
  };

  static bool readCompound(SvgScanner& scanner, Compound& compound);
  static bool matchesCompound(const SvgSource& source, NodeIndex element, const Compound& compound);
  // The outermost element that the compounds [begin, end) match when the last matches `innermost`; or 0.
  NodeIndex matchChain(const SvgSource& source, NodeIndex innermost, std::size_t begin,
                       std::size_t end) const;

  std::vector<Compound> compounds_;  // the subject last; never empty
  std::uint32_t specificity_ = 0;
};

// Is `name` one of the blank-separated words of `list`?
bool hasWord(std::string_view list, std::string_view name);

}  // namespace host

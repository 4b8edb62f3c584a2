// Path styles as properties and as attributes of this host's own.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "Document.h"
#include "SvgDeclared.h"
#include "SvgPrefixes.h"
#include "SvgTagEdit.h"

namespace host {

struct SvgStyleWords {
  using Entry = std::pair<std::string_view, std::string>;
  std::vector<Entry> properties;
  std::vector<Entry> hostAttributes;  // an empty text stands for no attribute

  bool operator==(const SvgStyleWords& other) const {
    return properties == other.properties && hostAttributes == other.hostAttributes;
  }
};

// Lengths are written in user units of `documentUnitsPerUser`. An unpainted side says "none" and nothing
// else; a paint that is not plain RGB appears as its fallback, and in full in an attribute of the host's.
SvgStyleWords styleWords(const AIPathStyle& style, const Document& document, double documentUnitsPerUser);

// ` fill="..." ...` for a new element inside `parent`, in full as far as the parent or a style sheet says
// anything, otherwise as far as it differs from what SVG starts from.
std::string newStyleAttributes(const SvgStyleWords& words, NodeIndex parent, const SvgDeclared& declared,
                               SvgPrefixes& prefixes, SvgScope scope);

// Writes what differs from `before` on an element of the file.
void editStyle(const SvgStyleWords& before, const SvgStyleWords& now, NodeIndex element,
               const SvgSource& source, const SvgDeclared& declared, SvgTagEdit& tag);

}  // namespace host

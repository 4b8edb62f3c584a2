// What the elements of a drawing are to a reader.
#pragma once

#include <cstdint>

#include "SvgSource.h"

namespace host {

enum class SvgElementKind : std::uint8_t {
  None,    // draws nothing by itself: definitions, descriptions, elements that are not SVG
  Group,   // g, a
  Nested,  // svg
  Switch,
  Shape,
  Text,
  Image,
  Use,
  Foreign  // foreignObject, and SVG elements that are not known
};

SvgElementKind kindOf(const SvgSource& source, NodeIndex element);

// requiredExtensions and systemLanguage; the language is English.
bool passesConditions(const SvgSource& source, NodeIndex element);
// The child of a <switch> that is drawn; 0 if none is.
NodeIndex chosenChild(const SvgSource& source, NodeIndex element);

}  // namespace host

// Paints that are numbers of a colour space.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "AIColor.h"

namespace host {

// In their usual order, 0 to 1; those that the kind does not have are 0. Gray is ink: 0 white, 1 black.
using PaintComponents = std::array<AIReal, 4>;

// Of kGrayColor, kThreeColor and kFourColor; 0 for the others.
std::size_t paintComponentCount(AIColorTag kind);
// Nullopt for a paint that is no numbers.
std::optional<PaintComponents> componentsOf(const AIColor& paint);
AIColor paintOf(AIColorTag kind, const PaintComponents& components);

// The same paint to the last number; tints of one custom colour differ.
bool isSamePaint(const AIColor& a, const AIColor& b);
bool isSameDefinition(const AICustomColor& a, const AICustomColor& b);

}  // namespace host

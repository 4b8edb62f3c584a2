// Drawings for the bench programs, the same in every run.
#pragma once

#include <cstddef>
#include <vector>

#include "Document.h"

namespace bench {

// Round shapes of twelve curves each, none quite like another, in rows over a page from (0, 0) on. They keep
// apart and cover a little over a third of the page.
std::vector<host::PathGeometry> curvedShapes(std::size_t count, double pageWidth, double pageHeight);

host::PathGeometry rectangle(double left, double bottom, double right, double top);

AIPathStyle filled();
AIPathStyle stroked(double width);

// Into the current layer, which is made if there is none: each shape a path, or all of them the paths of one
// compound path.
void addApart(host::Document& document, const std::vector<host::PathGeometry>& shapes,
              const AIPathStyle& style);
void addAsCompound(host::Document& document, const std::vector<host::PathGeometry>& shapes,
                   const AIPathStyle& style);

}  // namespace bench

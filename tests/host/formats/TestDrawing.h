// Drawings for tests: read from a text, changed, and compared after a save.
#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

#include "SvgDrawing.h"

namespace host {

// A failure of the test, and an empty drawing, if the bytes are none.
SvgDrawing readDrawing(const std::string& bytes);

// Finds art by its name, or by the id of its element; a failure if there is none.
ArtId named(const SvgDrawing& drawing, std::string_view name);
ArtId rootOf(const SvgDrawing& drawing, std::size_t layerFromTop);

// A path of straight sides.
std::shared_ptr<const PathGeometry> corners(std::initializer_list<AIRealPoint> points, bool closed);

AIColor cmyk(double c, double m, double y, double k);
AIColor rgb(double r, double g, double b);
std::shared_ptr<const AIPathStyle> stroked(const AIColor& color, double width, bool overprint = false);
std::shared_ptr<const AIPathStyle> filled(const AIColor& color, bool overprint = false);

// On top of the group.
ArtId addPath(SvgDrawing& drawing, ArtId group, std::initializer_list<AIRealPoint> points,
              std::shared_ptr<const AIPathStyle> style);
LayerId addLayer(SvgDrawing& drawing, const std::string& title, AIPaintOrder order = kPlaceAboveAll,
                 LayerId reference = 0);

// All that has to survive a save, one object a line.
std::string describe(const Document& document);

// Saves, reads back, expects the same document and the same bytes from a second save, and gives them.
std::string saved(const SvgDrawing& drawing);

}  // namespace host

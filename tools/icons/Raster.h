// An SVG text, drawn.
#pragma once

#include <cairo.h>

#include <memory>
#include <string>

namespace icons {

struct SurfaceDestroy {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using SurfacePointer = std::unique_ptr<cairo_surface_t, SurfaceDestroy>;

struct ContextDestroy {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
};
using ContextPointer = std::unique_ptr<cairo_t, ContextDestroy>;

// Throws a Fault unless the drawing is a square whose view box is `size` units wide and starts at 0, so that
// what lies on whole units lies on whole pixels.
void checkPixelGrid(const std::string& svg, int size);

// A square of `pixels` by `pixels`, clear where nothing is drawn. Throws a Fault if the text cannot be read.
SurfacePointer drawSvg(const std::string& svg, int pixels);

// The same picture gives the same bytes. Throws a Fault if there is no memory for them.
std::string encodePng(cairo_surface_t* picture);

}  // namespace icons

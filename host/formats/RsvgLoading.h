// What everything that draws through librsvg and cairo shares.
#pragma once

#include <cairo.h>
#include <librsvg/rsvg.h>

#include <filesystem>
#include <memory>
#include <string>

namespace host {

struct ObjectUnref {
  void operator()(void* object) const { g_object_unref(object); }
};
struct SurfaceDestroy {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct ContextDestroy {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
};
using RsvgPointer = std::unique_ptr<RsvgHandle, ObjectUnref>;
using SurfacePointer = std::unique_ptr<cairo_surface_t, SurfaceDestroy>;
using ContextPointer = std::unique_ptr<cairo_t, ContextDestroy>;

// `file` is where the drawing lies, for the images it links to; may be empty. `flags` go beside
// RSVG_HANDLE_FLAG_UNLIMITED. Null, with a clause on why in `reason`, if it can't be loaded.
RsvgPointer loadRsvg(const std::string& svg, const std::filesystem::path& file, std::string& reason,
                     RsvgHandleFlags flags = RSVG_HANDLE_FLAGS_NONE);

// The message as a clause without a full stop; frees the error, which may be null.
std::string takeMessage(GError* error);

}  // namespace host

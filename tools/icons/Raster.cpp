#include "Raster.h"

#include <librsvg/rsvg.h>

#include "Fault.h"

namespace icons {
namespace {

struct ObjectUnref {
  void operator()(void* object) const { g_object_unref(object); }
};
using RsvgPointer = std::unique_ptr<RsvgHandle, ObjectUnref>;

Fault faultOf(GError* error) {
  std::string text = error != nullptr ? error->message : "unknown reason";
  g_clear_error(&error);
  while (!text.empty() && (text.back() == '\n' || text.back() == '.')) text.pop_back();
  return Fault("it cannot be drawn: " + text);
}

RsvgPointer load(const std::string& svg) {
  const auto* bytes = reinterpret_cast<const guint8*>(svg.data());
  GError* error = nullptr;
  RsvgPointer handle(rsvg_handle_new_from_data(bytes, svg.size(), &error));
  if (!handle) throw faultOf(error);
  return handle;
}

cairo_status_t appendBytes(void* closure, const unsigned char* data, unsigned int length) {
  static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
  return CAIRO_STATUS_SUCCESS;
}

bool isExactly(double value, int whole) {
  return !(value < whole) && !(value > whole);
}

}  // namespace

void checkPixelGrid(const std::string& svg, int size) {
  const RsvgPointer handle = load(svg);
  gboolean hasBox = 0;
  RsvgRectangle box{};
  rsvg_handle_get_intrinsic_dimensions(handle.get(), nullptr, nullptr, nullptr, nullptr, &hasBox, &box);
  if (hasBox != 0 && isExactly(box.x, 0) && isExactly(box.y, 0) && isExactly(box.width, size) &&
      isExactly(box.height, size)) {
    return;
  }
  const std::string side = std::to_string(size);
  throw Fault("its viewBox is not \"0 0 " + side + " " + side + "\", the size that the list gives");
}

SurfacePointer drawSvg(const std::string& svg, int pixels) {
  const RsvgPointer handle = load(svg);
  SurfacePointer surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixels, pixels));
  const ContextPointer context(cairo_create(surface.get()));
  const RsvgRectangle whole{0, 0, static_cast<double>(pixels), static_cast<double>(pixels)};
  GError* error = nullptr;
  if (!rsvg_handle_render_document(handle.get(), context.get(), &whole, &error)) throw faultOf(error);
  cairo_surface_flush(surface.get());
  return surface;
}

std::string encodePng(cairo_surface_t* picture) {
  std::string bytes;
  const cairo_status_t status = cairo_surface_write_to_png_stream(picture, appendBytes, &bytes);
  if (status != CAIRO_STATUS_SUCCESS) throw Fault(cairo_status_to_string(status));
  return bytes;
}

}  // namespace icons

#include "PngExport.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "SvgPicture.h"

namespace host {
namespace {

struct SurfaceDestroy {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using SurfacePointer = std::unique_ptr<cairo_surface_t, SurfaceDestroy>;

cairo_status_t appendBytes(void* closure, const unsigned char* data, unsigned int length) {
  const auto* bytes = reinterpret_cast<const char*>(data);
  static_cast<std::string*>(closure)->append(bytes, length);
  return CAIRO_STATUS_SUCCESS;
}

struct PixelSize {
  int width, height;
};

PixelSize pictureSize(const AIRealRect& all, double points, const PngOptions& options) {
  const double width = (all.right - all.left) * points;
  const double height = (all.top - all.bottom) * points;
  const double factor = std::min(options.pixelsPerPoint, options.longestSide / std::max(width, height));
  const auto pixels = [&](double side) { return std::max(1, static_cast<int>(std::lround(side * factor))); };
  return {pixels(width), pixels(height)};
}

}  // namespace

std::variant<PngPicture, std::string> renderPng(const SvgDrawing& drawing, std::string svg,
                                                const PngOptions& options) {
  auto loaded = SvgPicture::load(pictureSource(drawing, std::move(svg), options.file));
  if (std::string* reason = std::get_if<std::string>(&loaded)) return std::move(*reason);
  const SvgPicture& shown = std::get<SvgPicture>(loaded);

  const PixelSize size = pictureSize(shown.bounds(), drawing.document->scale(), options);
  const int stride = size.width * 4;
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>(stride) * static_cast<std::size_t>(size.height));
  const PixelRect whole{0, 0, static_cast<double>(size.width), static_cast<double>(size.height)};
  std::string reason = shown.draw({bytes.data(), size.width, size.height, stride}, whole);
  if (!reason.empty()) return reason;

  // On white nothing shines through, so the file needs no alpha.
  const SurfacePointer surface(
      cairo_image_surface_create_for_data(bytes.data(), CAIRO_FORMAT_RGB24, size.width, size.height, stride));
  PngPicture picture;
  picture.width = size.width;
  picture.height = size.height;
  const cairo_status_t status = cairo_surface_write_to_png_stream(surface.get(), appendBytes, &picture.bytes);
  if (status != CAIRO_STATUS_SUCCESS) return std::string(cairo_status_to_string(status));
  return picture;
}

}  // namespace host

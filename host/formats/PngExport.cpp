#include "PngExport.h"

#include <cairo.h>
#include <librsvg/rsvg.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>
#include <utility>

#include "Geometry.h"

namespace host {
namespace {

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

std::string takeMessage(GError* error) {
  std::string text = error != nullptr ? error->message : "it could not be drawn";
  g_clear_error(&error);
  while (!text.empty() && (text.back() == '\n' || text.back() == '.')) text.pop_back();
  return text;
}

cairo_status_t appendBytes(void* closure, const unsigned char* data, unsigned int length) {
  const auto* bytes = reinterpret_cast<const char*>(data);
  static_cast<std::string*>(closure)->append(bytes, length);
  return CAIRO_STATUS_SUCCESS;
}

std::string number(double value) {
  char buffer[32];
  return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
}

AIRealRect unionOfArtboards(const Document& document) {
  AIRealRect all = kEmptyRect;
  for (const Artboard& artboard : document.state().artboards) all = unite(all, artboard.position);
  return all;
}

void setRootAttribute(const SvgSource& source, std::vector<SvgEdit>& edits, std::string_view name,
                      const std::string& value) {
  if (const auto range = source.rawAttribute(source.root(), name)) {
    edits.push_back({range->begin, range->end, value});
    return;
  }
  const SvgNode& root = source.node(source.root());
  std::size_t at = root.tagEnd - 1;
  if (source.bytes()[at - 1] == '/') --at;
  edits.push_back({at, at, " " + std::string(name) + "=\"" + value + "\""});
}

// The root element shows the first artboard only. With several, its view is widened to all of them; with
// one it stays as it is, since sizes in percent refer to it.
std::string showAllArtboards(const SvgDrawing& drawing, std::string svg) {
  AIRealMatrix rootFromDocument{};
  if (drawing.document->state().artboards.size() < 2) return svg;
  if (!invert(drawing.documentFromRoot, rootFromDocument)) return svg;
  auto parsed = SvgSource::parse(std::move(svg));
  const auto& source = *std::get<std::unique_ptr<SvgSource>>(parsed);
  const AIRealRect all = unionOfArtboards(*drawing.document);
  const AIRealPoint from = apply(rootFromDocument, {all.left, all.top});
  const AIRealPoint to = apply(rootFromDocument, {all.right, all.bottom});
  std::vector<SvgEdit> edits;
  setRootAttribute(
      source, edits, "viewBox",
      number(from.x) + " " + number(from.y) + " " + number(to.x - from.x) + " " + number(to.y - from.y));
  setRootAttribute(source, edits, "width", number(all.right - all.left) + "pt");
  setRootAttribute(source, edits, "height", number(all.top - all.bottom) + "pt");
  setRootAttribute(source, edits, "preserveAspectRatio", "none");
  return source.splice(std::move(edits));
}

struct PixelSize {
  int width, height;
};

PixelSize pictureSize(const SvgDrawing& drawing, const PngOptions& options) {
  const AIRealRect all = unionOfArtboards(*drawing.document);
  const double points = drawing.document->scale();
  const double width = (all.right - all.left) * points;
  const double height = (all.top - all.bottom) * points;
  const double factor = std::min(options.pixelsPerPoint, options.longestSide / std::max(width, height));
  const auto pixels = [&](double side) { return std::max(1, static_cast<int>(std::lround(side * factor))); };
  return {pixels(width), pixels(height)};
}

RsvgPointer load(const std::string& svg, const std::filesystem::path& file, GError** error) {
  GInputStream* stream =
      g_memory_input_stream_new_from_data(svg.data(), static_cast<gssize>(svg.size()), nullptr);
  GFile* base = file.empty() ? nullptr : g_file_new_for_path(std::filesystem::absolute(file).c_str());
  RsvgPointer handle(
      rsvg_handle_new_from_stream_sync(stream, base, RSVG_HANDLE_FLAG_UNLIMITED, nullptr, error));
  g_object_unref(stream);
  if (base != nullptr) g_object_unref(base);
  return handle;
}

}  // namespace

std::variant<PngPicture, std::string> renderPng(const SvgDrawing& drawing, std::string svg,
                                                const PngOptions& options) {
  const std::string shown = showAllArtboards(drawing, std::move(svg));
  GError* error = nullptr;
  const RsvgPointer handle = load(shown, options.file, &error);
  if (!handle) return takeMessage(error);

  const PixelSize size = pictureSize(drawing, options);
  const SurfacePointer surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.width, size.height));
  const ContextPointer context(cairo_create(surface.get()));
  cairo_set_source_rgb(context.get(), 1, 1, 1);
  cairo_paint(context.get());
  const RsvgRectangle viewport{0, 0, static_cast<double>(size.width), static_cast<double>(size.height)};
  if (!rsvg_handle_render_document(handle.get(), context.get(), &viewport, &error)) return takeMessage(error);

  PngPicture picture;
  picture.width = size.width;
  picture.height = size.height;
  const cairo_status_t status = cairo_surface_write_to_png_stream(surface.get(), appendBytes, &picture.bytes);
  if (status != CAIRO_STATUS_SUCCESS) return std::string(cairo_status_to_string(status));
  return picture;
}

}  // namespace host

#include "SvgPicture.h"

#include <charconv>
#include <utility>

#include "Geometry.h"
#include "RsvgLoading.h"

namespace host {
namespace {

// A buffer to draw on.
struct Target {
  explicit Target(const PixelBuffer& pixels)
      : surface(cairo_image_surface_create_for_data(pixels.bytes, CAIRO_FORMAT_ARGB32, pixels.width,
                                                    pixels.height, pixels.stride)),
        context(cairo_create(surface.get())) {}

  const SurfacePointer surface;
  const ContextPointer context;
};

std::string number(double value) {
  char buffer[32];
  return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
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

// Empty, or a clause on why the bytes cannot be read.
std::string showPart(std::string& svg, const PixelRect& part, const AIRealRect& bounds) {
  auto parsed = SvgSource::parse(std::move(svg));
  if (const SvgError* error = std::get_if<SvgError>(&parsed)) return error->reason;
  const auto& source = *std::get<std::unique_ptr<SvgSource>>(parsed);
  std::vector<SvgEdit> edits;
  setRootAttribute(
      source, edits, "viewBox",
      number(part.x) + " " + number(part.y) + " " + number(part.width) + " " + number(part.height));
  setRootAttribute(source, edits, "width", number(bounds.right - bounds.left) + "pt");
  setRootAttribute(source, edits, "height", number(bounds.top - bounds.bottom) + "pt");
  setRootAttribute(source, edits, "preserveAspectRatio", "none");
  svg = source.splice(std::move(edits));
  return {};
}

}  // namespace

struct SvgPicture::Handle {
  RsvgPointer rsvg;
};

SvgPicture::SvgPicture(std::unique_ptr<Handle> handle, const AIRealRect& bounds)
    : handle_(std::move(handle)), bounds_(bounds) {}
SvgPicture::SvgPicture(SvgPicture&&) noexcept = default;
SvgPicture& SvgPicture::operator=(SvgPicture&&) noexcept = default;
SvgPicture::~SvgPicture() = default;

std::variant<SvgPicture, std::string> SvgPicture::load(SvgPictureSource source) {
  std::string reason;
  if (source.shownPart) reason = showPart(source.svg, *source.shownPart, source.bounds);
  if (!reason.empty()) return reason;
  auto handle = std::make_unique<Handle>(Handle{loadRsvg(source.svg, source.file, reason)});
  if (!handle->rsvg) return reason;
  return SvgPicture(std::move(handle), source.bounds);
}

std::string SvgPicture::draw(const PixelBuffer& pixels, const PixelRect& place) const {
  {
    const Target target(pixels);
    cairo_rectangle(target.context.get(), place.x, place.y, place.width, place.height);
    cairo_set_source_rgb(target.context.get(), 1, 1, 1);
    cairo_fill(target.context.get());
    cairo_surface_flush(target.surface.get());
  }
  return drawOver(pixels, place);
}

std::string SvgPicture::drawOver(const PixelBuffer& pixels, const PixelRect& place) const {
  const Target target(pixels);
  cairo_rectangle(target.context.get(), place.x, place.y, place.width, place.height);
  cairo_clip(target.context.get());
  const RsvgRectangle viewport{place.x, place.y, place.width, place.height};
  GError* error = nullptr;
  if (!rsvg_handle_render_document(handle_->rsvg.get(), target.context.get(), &viewport, &error)) {
    return takeMessage(error);
  }
  cairo_surface_flush(target.surface.get());
  const cairo_status_t status = cairo_status(target.context.get());
  return status == CAIRO_STATUS_SUCCESS ? std::string() : cairo_status_to_string(status);
}

// The root element shows what its view box says. Where the file has pages its view is moved and widened to
// all of them; else it stays as it is, since sizes in percent refer to it.
SvgPictureSource pictureSource(const SvgDrawing& drawing, std::string svg,
                               const std::filesystem::path& file) {
  SvgPictureSource source{std::move(svg), file, unionOfArtboards(*drawing.document), std::nullopt};
  AIRealMatrix rootFromDocument{};
  const auto& artboards = drawing.document->state().artboards;
  if (artboards.size() == 1 && artboards.front().source == drawing.source->root()) return source;
  if (!invert(drawing.documentFromRoot, rootFromDocument)) return source;
  const AIRealPoint from = apply(rootFromDocument, {source.bounds.left, source.bounds.top});
  const AIRealPoint to = apply(rootFromDocument, {source.bounds.right, source.bounds.bottom});
  source.shownPart = PixelRect{from.x, from.y, to.x - from.x, to.y - from.y};
  return source;
}

AIRealRect unionOfArtboards(const Document& document) {
  AIRealRect all = kEmptyRect;
  for (const Artboard& artboard : document.state().artboards) all = unite(all, artboard.position);
  return all;
}

}  // namespace host

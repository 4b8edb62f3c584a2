#include "PdfPictures.h"

#include <cairo-pdf.h>

#include <qpdf/QPDFPageDocumentHelper.hh>

#include "RsvgLoading.h"
#include "SvgNumber.h"
#include "SvgPicture.h"
#include "SvgTagEdit.h"
#include "SvgWriting.h"

namespace host {
namespace {

constexpr char kIdPrefix[] = "corvane-picture-";

cairo_status_t appendBytes(void* closure, const unsigned char* data, unsigned int length) {
  static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
  return CAIRO_STATUS_SUCCESS;
}

std::string idOf(NodeIndex element) {
  return kIdPrefix + std::to_string(element);
}

// The file with an element of known id for each picture's element, and every layer shown. A reference to an
// element that is renamed would be lost, so an id that is there stays, and the new element round it bears the
// known one.
class NamedCopy {
 public:
  explicit NamedCopy(const SvgDrawing& drawing)
      : expanded_(drawing.source->withEntitiesExpanded()), writing_(drawing, *expanded_) {}

  std::string make(const std::map<NodeIndex, PdfRest>& elements, const std::set<NodeIndex>& unfaded,
                   const SvgPictureSource& shown) {
    if (shown.shownPart) show(*shown.shownPart, shown.bounds);
    showLayers();
    for (const NodeIndex element : unfaded) edit(element).setInStyle("opacity", "1");
    for (const auto& [element, rest] : elements) {
      if (element != writing_.source.root()) wrap(element);
      if (rest != PdfRest::None) leaveOnly(rest, element);
    }
    for (auto& [element, tag] : tags_) tag.write(writing_.plan, writing_.prefixes);
    return writing_.plan.apply(writing_.prefixes);
  }

 private:
  SvgTagEdit& edit(NodeIndex element) {
    return tags_.try_emplace(element, writing_.source, writing_.declared, element).first->second;
  }

  void show(const PixelRect& part, const AIRealRect& bounds) {
    SvgTagEdit& tag = edit(writing_.source.root());
    tag.set("viewBox", numberText(part.x) + " " + numberText(part.y) + " " + numberText(part.width) + " " +
                           numberText(part.height));
    tag.set("width", numberText(bounds.right - bounds.left) + "pt");
    tag.set("height", numberText(bounds.top - bounds.bottom) + "pt");
    tag.set("preserveAspectRatio", "none");
  }

  void showLayers() {
    for (const LayerId id : writing_.document.state().layers) {
      const Layer& layer = *writing_.document.layer(id);
      if (!layer.visible && layer.source != 0) edit(layer.source).setInStyle("display", "inline");
    }
  }

  void leaveOnly(PdfRest rest, NodeIndex element) {
    SvgTagEdit& tag = edit(element);
    tag.setInStyle("opacity", "1");
    if (rest != PdfRest::Fill) tag.setInStyle("fill", "none");
    if (rest != PdfRest::Stroke) tag.setInStyle("stroke", "none");
    for (const char* place : {"marker-start", "marker-mid", "marker-end"}) {
      if (rest == PdfRest::Fill) tag.setInStyle(place, "none");
    }
  }

  void wrap(NodeIndex element) {
    const SvgNode& node = writing_.source.node(element);
    const std::string group = writing_.prefixes.elementName(node.parent, "g");
    SvgNewContent before, after;
    before.add("<" + group + " id=\"" + idOf(element) + "\">");
    after.add("</" + group + ">");
    writing_.plan.insert(node.begin, std::move(before));
    writing_.plan.insert(node.end, std::move(after));
  }

  std::unique_ptr<SvgSource> expanded_;
  SvgWriting writing_;
  std::map<NodeIndex, SvgTagEdit> tags_;
};

// Where `bounds` lies on the page of an artboard: points, y down.
RsvgRectangle viewportOn(const AIRealRect& page, const AIRealRect& bounds, double scale) {
  return {(bounds.left - page.left) * scale, (page.top - bounds.top) * scale,
          (bounds.right - bounds.left) * scale, (bounds.top - bounds.bottom) * scale};
}

}  // namespace

std::size_t PdfPictures::request(std::size_t artboard, NodeIndex element, PdfRest rest) {
  requests_.push_back({artboard, {}});
  add(requests_.size() - 1, element, rest);
  return requests_.size() - 1;
}

void PdfPictures::add(std::size_t picture, NodeIndex element, PdfRest rest) {
  requests_[picture].elements.push_back(element);
  elements_[element] = rest;
}

std::string PdfPictures::drawInto(QPDF& pdf, const std::filesystem::path& file,
                                  std::vector<QPDFObjectHandle>& forms) const {
  if (requests_.empty()) return {};
  const SvgPictureSource shown = pictureSource(drawing_, {}, file);
  std::string reason;
  const RsvgPointer handle = loadRsvg(NamedCopy(drawing_).make(elements_, unfaded_, shown), file, reason,
                                      RSVG_HANDLE_FLAG_KEEP_IMAGE_DATA);
  if (!handle) return reason;

  std::string bytes;
  const auto& artboards = drawing_.document->state().artboards;
  const double scale = drawing_.document->scale();
  {
    const SurfacePointer surface(cairo_pdf_surface_create_for_stream(appendBytes, &bytes, 1, 1));
    const ContextPointer context(cairo_create(surface.get()));
    for (const Request& request : requests_) {
      const AIRealRect& page = artboards[request.artboard].position;
      cairo_pdf_surface_set_size(surface.get(), (page.right - page.left) * scale,
                                 (page.top - page.bottom) * scale);
      const RsvgRectangle viewport = viewportOn(page, shown.bounds, scale);
      for (const NodeIndex element : request.elements) {
        GError* error = nullptr;
        const std::string id = "#" + idOf(element);
        const char* const wanted = element == drawing_.source->root() ? nullptr : id.c_str();  // null: all
        if (!rsvg_handle_render_layer(handle.get(), context.get(), wanted, &viewport, &error)) {
          return takeMessage(error);
        }
      }
      cairo_show_page(context.get());
    }
    cairo_surface_finish(surface.get());
    const cairo_status_t status = cairo_surface_status(surface.get());
    if (status != CAIRO_STATUS_SUCCESS) return cairo_status_to_string(status);
  }

  // Its objects are copied, so it may go before the file is written.
  QPDF drawn;
  drawn.setImmediateCopyFrom(true);
  drawn.processMemoryFile("pictures", bytes.data(), bytes.size());
  for (QPDFPageObjectHelper& page : QPDFPageDocumentHelper(drawn).getAllPages()) {
    forms.push_back(pdf.copyForeignObject(page.getFormXObjectForPage()));
  }
  return {};
}

}  // namespace host

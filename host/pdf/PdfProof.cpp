#include "PdfProof.h"

#include <cmath>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <set>

#include "Geometry.h"
#include "PdfChoice.h"
#include "PdfLines.h"

namespace host {
namespace {

constexpr double kTolerance = 0.002;  // units of the page

bool isNear(double a, double b, double tolerance) {
  return std::abs(a - b) <= tolerance;
}

bool isNear(const AIRealRect& a, const AIRealRect& b, double tolerance) {
  return isNear(a.left, b.left, tolerance) && isNear(a.right, b.right, tolerance) &&
         isNear(a.top, b.top, tolerance) && isNear(a.bottom, b.bottom, tolerance);
}

// Points in a unit of the page.
double unitOf(QPDFPageObjectHelper& page) {
  QPDFObjectHandle unit = page.getObjectHandle().getKey("/UserUnit");
  return unit.isNumber() ? unit.getNumericValue() : 1;
}

// What the layers are in words, in their order.
std::string wordsOn(const std::string& title, bool isVisible, bool isEditable, const std::string& step) {
  return "\"" + title + "\"" + (isVisible ? "" : " hidden") + (isEditable ? "" : " locked") +
         (step.empty() ? "" : " " + step);
}

std::vector<std::string> layersMeant(const Document& document, const PdfChoice& choice) {
  std::vector<std::string> layers;
  for (const LayerId id : choice.layers()) {
    const Layer& layer = *document.layer(id);
    layers.push_back(wordsOn(layer.title, layer.visible, layer.editable, choice.stepOf(id)));
  }
  return layers;
}

std::set<QPDFObjGen> membersOf(QPDFObjectHandle array) {
  std::set<QPDFObjGen> members;
  for (int i = 0; array.isArray() && i < array.getArrayNItems(); ++i) {
    members.insert(array.getArrayItem(i).getObjGen());
  }
  return members;
}

std::string stepOf(QPDFObjectHandle group) {
  QPDFObjectHandle metadata = group.getKey("/GTS_Metadata");
  if (!metadata.isDictionary()) return {};
  std::string step = metadata.getKey("/GTS_ProcStepsGroup").getName().substr(1);
  QPDFObjectHandle type = metadata.getKey("/GTS_ProcStepsType");
  if (type.isName()) step += "/" + type.getName().substr(1);
  return step;
}

std::vector<std::string> layersFound(QPDF& pdf) {
  QPDFObjectHandle choice = pdf.getRoot().getKey("/OCProperties").getKey("/D");
  QPDFObjectHandle order = choice.getKey("/Order");
  const std::set<QPDFObjGen> off = membersOf(choice.getKey("/OFF"));
  const std::set<QPDFObjGen> locked = membersOf(choice.getKey("/Locked"));
  std::vector<std::string> layers;
  for (int i = 0; order.isArray() && i < order.getArrayNItems(); ++i) {
    QPDFObjectHandle group = order.getArrayItem(i);
    layers.push_back(wordsOn(group.getKey("/Name").getUTF8Value(), off.count(group.getObjGen()) == 0,
                             locked.count(group.getObjGen()) == 0, stepOf(group)));
  }
  return layers;
}

std::string differenceOf(const PdfLine& meant, const PdfLine& found, double unit) {
  if (meant.layer != found.layer)
    return "lies on layer \"" + found.layer + "\", not on \"" + meant.layer + "\"";
  if (meant.isFill != found.isFill) return meant.isFill ? "is not filled" : "has no stroke";
  if (meant.spot != found.spot) return "has the colour \"" + found.spot + "\", not \"" + meant.spot + "\"";
  if (meant.overprints != found.overprints) return meant.overprints ? "does not overprint" : "overprints";
  if (!isNear(meant.width, found.width, kTolerance * unit)) return "has another width";
  if (!isNear(meant.box, found.box, (kTolerance + meant.slack) * unit))
    return "lies elsewhere or has another size";
  return {};
}

std::string differenceOf(const SvgDrawing& drawing, const std::vector<PdfLine>& meant,
                         const std::vector<PdfLine>& found, double unit) {
  for (std::size_t i = 0; i < meant.size(); ++i) {
    if (i >= found.size()) return nameOfObject(drawing, meant[i].art) + " is missing";
    const std::string difference = differenceOf(meant[i], found[i], unit);
    if (!difference.empty()) return nameOfObject(drawing, meant[i].art) + " " + difference;
  }
  if (found.size() > meant.size()) {
    return "there are " + std::to_string(found.size() - meant.size()) + " lines in spot colours too many";
  }
  return {};
}

std::string differenceOfSize(QPDFPageObjectHelper& page, const Document& document, const Artboard& artboard) {
  const double unit = unitOf(page);
  const QPDFObjectHandle::Rectangle box = page.getMediaBox().getArrayAsRectangle();
  const AIRealRect& meant = artboard.position;
  const double scale = document.scale() / unit;
  const bool isSame = isNear(box.urx - box.llx, (meant.right - meant.left) * scale, kTolerance) &&
                      isNear(box.ury - box.lly, (meant.top - meant.bottom) * scale, kTolerance);
  return isSame ? std::string() : "the page of artboard \"" + artboard.name + "\" has another size";
}

std::string kindOf(AIArtType type) {
  return type == kCompoundPathArt ? "compound path" : type == kPathArt ? "path" : "object";
}

}  // namespace

std::string nameOfObject(const SvgDrawing& drawing, ArtId id) {
  const Art& art = drawing.document->artRecord(id);
  if (!art.name.empty()) return "\"" + art.name + "\"";
  if (art.source == 0) return "a " + kindOf(art.type);
  if (const auto name = drawing.source->attribute(art.source, "id")) return "\"" + std::string(*name) + "\"";
  const std::size_t line = drawing.source->positionOf(drawing.source->node(art.source).begin).line;
  return "the " + kindOf(art.type) + " in line " + std::to_string(line);
}

std::string proofOf(const std::string& bytes, const SvgDrawing& drawing, const PdfOptions& options) {
  QPDF pdf;
  pdf.setSuppressWarnings(true);
  pdf.processMemoryFile("the PDF", bytes.data(), bytes.size());
  if (pdf.numWarnings() > 0) return "the PDF that was written is damaged";
  const Document& document = *drawing.document;
  const PdfChoice choice(document, options);
  if (layersMeant(document, choice) != layersFound(pdf)) return "the layers are not as in the drawing";
  std::vector<QPDFPageObjectHelper> pages = QPDFPageDocumentHelper(pdf).getAllPages();
  const auto& artboards = document.state().artboards;
  if (pages.size() != artboards.size()) return "there are not as many pages as artboards";
  for (std::size_t i = 0; i < pages.size(); ++i) {
    std::string difference = differenceOfSize(pages[i], document, artboards[i]);
    if (difference.empty())
      difference =
          differenceOf(drawing, linesMeant(drawing, choice, i), linesFound(pages[i]), unitOf(pages[i]));
    if (!difference.empty()) return difference;
  }
  return {};
}

}  // namespace host

#include <utility>

#include "Geometry.h"
#include "SvgArtReader.h"
#include "SvgDrawing.h"
#include "SvgHostText.h"

namespace host {
namespace {

// Keeps what a save compares with.
void keepOriginals(SvgDrawing& drawing) {
  const Document& document = *drawing.document;
  drawing.originalArt.reserve(document.artSlots());
  for (ArtId id = 1; id <= document.artSlots(); ++id) drawing.originalArt.push_back(document.artRecord(id));
  for (LayerId id = 1; id <= document.layerSlots(); ++id) {
    drawing.originalLayers.push_back(document.layerRecord(id));
  }
  drawing.originalState = document.state();
  while (document.swatch(static_cast<SwatchId>(drawing.originalSwatches + 1)) != nullptr) {
    ++drawing.originalSwatches;
  }
  while (document.customColor(static_cast<CustomColorId>(drawing.originalCustomColors + 1)) != nullptr) {
    ++drawing.originalCustomColors;
  }
  drawing.originalSwatchesText = swatchesText(document);
}

void readContent(const SvgPage& page, const TextOutliner* outliner, SvgRemarks& remarks,
                 SvgDrawing& drawing) {
  const SvgSource& source = *drawing.source;
  Document& document = *drawing.document;
  document.setScale(page.scale);
  document.setRulerUnits(page.rulerUnits);
  document.editState().artboards = page.artboards;
  for (const NodeIndex node : readSwatches(source, document)) {
    remarks.add(node, "it is not understood and was left out of account");
  }
  SvgReading reading(source, remarks, document, page, outliner);
  SvgArtReader(reading).readLayers();
}

}  // namespace

std::variant<SvgDrawing, SvgError> readSvg(std::string bytes, const TextOutliner* outliner) {
  auto parsed = SvgSource::parse(std::move(bytes));
  if (auto* error = std::get_if<SvgError>(&parsed)) return std::move(*error);
  SvgDrawing drawing;
  drawing.source = std::move(std::get<std::unique_ptr<SvgSource>>(parsed));
  SvgRemarks remarks(*drawing.source);
  auto page = readPage(*drawing.source, remarks);
  if (auto* error = std::get_if<SvgError>(&page)) return std::move(*error);
  drawing.document = std::make_shared<Document>();
  readContent(std::get<SvgPage>(page), outliner, remarks, drawing);
  drawing.documentFromRoot = std::get<SvgPage>(page).documentFromRoot;
  drawing.remarks = remarks.take();
  keepOriginals(drawing);
  drawing.document->startRecording();
  return drawing;
}

AIRealMatrix documentFromContentOf(const SvgDrawing& drawing, NodeIndex parent) {
  const SvgSource& source = *drawing.source;
  std::vector<NodeIndex> path;
  for (NodeIndex node = parent; node != 0 && node != source.root(); node = source.node(node).parent) {
    path.push_back(node);
  }
  SvgRemarks remarks(source);
  const auto page = readPage(source, remarks);
  const SvgPage& root = std::get<SvgPage>(page);
  SvgFrame frame{drawing.documentFromRoot, root.innerWidth, root.innerHeight};
  for (std::size_t i = path.size(); i-- > 0;) frame = frameInside(source, path[i], frame);
  return frame.documentFromUser;
}

}  // namespace host

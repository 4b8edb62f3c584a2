// A drawing that was read from SVG: the document to work on and what is needed to write it back.
#pragma once

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "Document.h"
#include "SvgSource.h"

namespace host {

class TextOutliner;

// Something in the file that was not understood, or understood in one of several possible ways.
struct SvgRemark {
  std::string element;  // local name, such as "path"
  std::string id;       // may be empty
  std::string reason;   // a sentence without a full stop
  SvgPosition position;
};

struct SvgDrawing {
  std::unique_ptr<SvgSource> source;
  std::shared_ptr<Document> document;  // SourceIds in it are NodeIndexes of `source`
  std::vector<SvgRemark> remarks;
  // Points in document units: what a coordinate of the root element's user space becomes.
  AIRealMatrix documentFromRoot{};
  // The records as they were read, by id - 1: what a save compares with.
  std::vector<Art> originalArt;
  std::vector<Layer> originalLayers;
  DocumentState originalState;
  std::size_t originalSwatches = 0;  // ids up to these were read from the file
  std::size_t originalCustomColors = 0;
  std::string originalSwatchesText;  // swatchesText(*document) when all was read, see SvgHostText.h
};

// `bytes` is the whole file. `outliner` turns text into outlines; null: text is measured roughly.
std::variant<SvgDrawing, SvgError> readSvg(std::string bytes, const TextOutliner* outliner);

// The file as it has to be saved: the bytes that were read, with the document's changes spliced in. Reads
// only; a drawing can be written any number of times.
std::string writeSvg(const SvgDrawing& drawing);

// What a coordinate inside `parent` becomes in document units: the transforms of `parent` and of all
// elements round it.
AIRealMatrix documentFromContentOf(const SvgDrawing& drawing, NodeIndex parent);

}  // namespace host

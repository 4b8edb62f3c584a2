// A drawing as a PDF file for a cutting table and a printer.
//
// Layers are optional content groups, custom colours that are spots are Separation colour spaces of their
// names, overprint is what the styles say and on for line types, strokes stay strokes, and a page is an
// artboard at its true size. What a path with plain paints cannot express (gradients, text, images, masks,
// filters, markers, opacity of groups) is drawn by librsvg, in RGB, in its place in the stack; where inks are
// in it, they fade together in a transparency group of their own. What is mixed with bare paper is mixed with
// white, as everywhere else in this host.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "SvgDrawing.h"

namespace host {

// What of a drawing goes into the file. Marks are in all of them. The fill and the stroke of one path count
// each by itself.
enum class PdfPart {
  Whole,
  Print,  // without what is painted in a line type (see LineTypes.h)
  Cut     // only that
};

struct PdfOptions {
  std::string title;           // of the document; UTF-8
  std::filesystem::path file;  // where the drawing lies, for the images it links to; may be empty
  // Processing steps (ISO 19593-1) by layer title, such as "Structural/Cutting". Layers that are not named
  // carry none.
  std::map<std::string, std::string> steps;
  PdfPart part = PdfPart::Whole;
};

struct PdfFile {
  std::string bytes;                 // whole; the same drawing gives the same bytes
  std::vector<std::string> remarks;  // what could not be kept as it was, a sentence each without a full stop
};

// `svg` is the file as it would be saved (writeSvg), `outliner` as for reading it. The error is a clause
// without a full stop; one that the proof has found names the object.
std::variant<PdfFile, std::string> exportPdf(std::string svg, const TextOutliner* outliner,
                                             const PdfOptions& options);

}  // namespace host

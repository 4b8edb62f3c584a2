// Drawings written in other formats than their own.
#pragma once

#include <string>
#include <vector>

#include "SvgDrawing.h"

namespace host {

enum class ExportKind { Pdf, Png, Svg };

struct ExportFormat {
  ExportKind kind;
  const char* end;   // of the file's name, such as ".png"
  const char* name;  // for people
};

const std::vector<ExportFormat>& exportFormats();

// Null if the name tells no format; the case of its letters doesn't matter.
const ExportFormat* exportFormatOf(const std::string& output);
// Such as ".png or .svg".
std::string exportEnds();

// What is written beside a PDF.
struct ExportExtras {
  bool printFile = false;  // sheet-print.pdf beside sheet.pdf: what is not painted in a line type, and marks
  bool cutFile = false;    // sheet-cut.pdf: what is, and marks
  bool summary = false;    // sheet.txt and sheet.json: see JobSummary.h

  bool any() const { return printFile || cutFile || summary; }
};

// The file itself and those beside it, in the order they are written in.
std::vector<std::string> exportFiles(const std::string& output, const ExportExtras& extras);

struct ExportJob {
  std::string name;    // the drawing's, for people
  std::string input;   // where it lies, for the images it links to; may be empty
  std::string output;  // must tell a format; no extras for others than PDF
  ExportExtras extras;
};

// A sentence on the file that would be written over the drawing itself; empty if none would, or if it is the
// drawing's own format.
std::string overwritten(const ExportJob& job);

struct Exported {
  std::vector<std::string> remarks;  // what could not be kept as it was, a sentence each
  std::string failure;               // a sentence on what was not written, and what was; empty: all is there
};

// Nothing is written before all is made.
Exported exportDrawing(const SvgDrawing& drawing, const ExportJob& job);

}  // namespace host

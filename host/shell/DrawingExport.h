// Drawings written in other formats than their own.
#pragma once

#include <string>
#include <vector>

#include "SvgDrawing.h"

namespace host {

struct ExportFormat {
  const char* end;   // of the file's name, such as ".png"
  const char* name;  // for people
};

const std::vector<ExportFormat>& exportFormats();

// Null if the name tells no format.
const ExportFormat* exportFormatOf(const std::string& output);
// Such as ".png or .svg".
std::string exportEnds();

// `input` is where the drawing lies, for the images it links to, or empty; `name` is the drawing's for
// people. `output` must tell a format. What could not be kept as it was is added to `remarks`, a sentence
// each. Empty, or a sentence on why nothing was written.
std::string exportDrawing(const SvgDrawing& drawing, const std::string& name, const std::string& input,
                          const std::string& output, std::vector<std::string>& remarks);

}  // namespace host

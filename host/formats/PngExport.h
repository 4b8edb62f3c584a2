// A drawing as a PNG file.
#pragma once

#include <filesystem>
#include <string>
#include <variant>

#include "SvgDrawing.h"

namespace host {

struct PngOptions {
  double pixelsPerPoint = 150.0 / 72.0;
  int longestSide = 8000;      // pixels; a larger picture is drawn smaller
  std::filesystem::path file;  // where the drawing lies, for the images it links to; may be empty
};

struct PngPicture {
  std::string bytes;  // the file, whole
  int width = 0;      // pixels
  int height = 0;
};

// All artboards as they lie beside each other, on white. `svg` is the file as it would be saved. The error
// is a clause without a full stop.
std::variant<PngPicture, std::string> renderPng(const SvgDrawing& drawing, std::string svg,
                                                const PngOptions& options = {});

}  // namespace host

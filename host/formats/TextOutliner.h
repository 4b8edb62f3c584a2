// Turns text into outlines, for bounds and hit tests.
#pragma once

#include <string>
#include <vector>

#include "Art.h"

namespace host {

struct TextRun {
  std::string text;    // UTF-8, one line
  std::string family;  // as CSS lists them: "Arial, sans-serif"
  double size = 16;    // user units
  int weight = 400;    // 100..900
  bool italic = false;
};

struct TextOutline {
  std::vector<PathGeometry> paths;  // user units, y down, the baseline's start at the origin
  double advance = 0;               // user units
};

class TextOutliner {
 public:
  virtual ~TextOutliner() = default;
  virtual TextOutline outline(const TextRun& run) const = 0;
};

}  // namespace host

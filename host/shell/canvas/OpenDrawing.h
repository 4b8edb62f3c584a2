// A drawing that is open in the window: what was read, what plug-ins see of it, and what its file holds.
#pragma once

#include <cstdint>

#include "SvgDrawing.h"

namespace host {

struct OpenDocument;

struct OpenDrawing {
  SvgDrawing drawing;
  OpenDocument* shown;           // in the host's list of documents; never null
  std::uint64_t savedState = 0;  // Document::stateMark of what the file holds

  Document& document() const { return *drawing.document; }
  bool isModified() const { return document().stateMark() != savedState; }
};

}  // namespace host

// What of a drawing goes into the file.
#pragma once

#include <string>
#include <vector>

#include "Document.h"
#include "PdfExport.h"

namespace host {

// Paints are chosen one by one: the fill of a sticker is printed, and its stroke in a line type is cut.
class PdfChoice {
 public:
  // Both must outlive this.
  PdfChoice(const Document& document, const PdfOptions& options);

  bool isLine(const AIColor& color) const;  // a line type
  bool takes(const AIColor& color, LayerId layer) const;
  // Is what has no line types in it taken?
  bool takesPrint(LayerId layer) const { return options_.part != PdfPart::Cut || isOfMarks(layer); }
  // The style without the paints that are not taken, and with line types that overprint whatever it says:
  // what a table follows leaves no trace in the print.
  AIPathStyle taken(const AIPathStyle& style, LayerId layer) const;
  bool isOfMarks(LayerId layer) const { return layer == markLayer_ && layer != 0; }
  // The processing step that a layer bears; empty: none. Marks must print, so theirs never bears one.
  std::string stepOf(LayerId layer) const;

  // From the top down: all of them, or those that something taken lies on.
  const std::vector<LayerId>& layers() const { return layers_; }

 private:
  bool holdsAnything(LayerId layer) const;
  bool paintsAnything(const Art& art, LayerId layer) const;

  const Document& document_;
  const PdfOptions& options_;
  const LayerId markLayer_;
  std::vector<CustomColorId> lineTypes_;  // sorted
  std::vector<LayerId> layers_;
};

}  // namespace host

// A document open in the real host, with the suites that marks need held for as long as it lives.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Document.h"
#include "HeldSuites.h"
#include "PositionList.h"

namespace Vandrell::Corvane {

class Drawing {
 public:
  // One artboard and one layer, "Artwork", without art.
  explicit Drawing(const AIRealRect& artboard = {0, 792, 612, 0}, double scale = 1.0);

  host::Host host;
  host::Document& document() { return *document_; }
  host::View& view() { return host.documents().current()->view; }

  // Black shapes, on top of the current layer.
  host::ArtId addRectangle(double left, double bottom, double right, double top);
  host::ArtId addEllipse(const AIRealPoint& center, double radiusX, double radiusY);
  host::ArtId addRing(const AIRealPoint& center, double inner, double outer);
  // Above all others, and current from now on.
  host::LayerId addLayer(const std::string& title);

  std::vector<std::string> layerTitles();  // from the top down
  // Art of the topmost layer of that title, in the order of drawing.
  std::vector<host::ArtId> artOf(const std::string& title);
  // Centres of all marks, by the bounds of their outlines, in the order of drawing.
  PositionList marks();

 private:
  host::ArtId addPath(host::PathGeometry path);

  std::shared_ptr<host::Document> document_ = std::make_shared<host::Document>();
  const HeldSuites suites_;
};

}  // namespace Vandrell::Corvane

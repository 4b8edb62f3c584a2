// Writes layers: what changed in those of the file, and new ones as new elements.
#pragma once

#include <vector>

#include "SvgArtWriter.h"
#include "SvgTagEdit.h"
#include "SvgWriting.h"

namespace host {

// A layer that stands for what lies loose in the root element has no element of its own. Its content stays
// where it is as long as nothing but that changes; otherwise it becomes a layer with an element.
class SvgLayerWriter {
 public:
  SvgLayerWriter(SvgWriting& writing, SvgArtWriter& arts) : writing_(writing), arts_(arts) {}

  void write();

 private:
  bool isLoose(LayerId id) const;
  bool hasNewState(LayerId id) const;
  bool isDeclared(LayerId id) const;
  bool isTakenForLayer(ArtId id) const;
  bool isTakenForLayers(LayerId loose) const;
  bool isHomeless(LayerId loose) const;
  std::vector<LayerId> keepable(std::vector<LayerId> layers) const;
  void cutLost();

  void insertRun(const std::vector<LayerId>& run, LayerId below, LayerId above);
  SvgSpot spotBetween(LayerId below, LayerId above) const;
  NodeIndex anchorOf(LayerId id, NodeIndex (SvgArtWriter::*looseEnd)(ArtId) const) const;

  SvgNewContent content(LayerId id, const SvgPlace& place);
  SvgNewContent newLayer(LayerId id, SvgPlace place);
  SvgNewContent moved(LayerId id, const SvgPlace& place);
  void editKept(LayerId id);
  void editState(LayerId id, SvgTagEdit& tag) const;

  SvgWriting& writing_;
  SvgArtWriter& arts_;
};

}  // namespace host

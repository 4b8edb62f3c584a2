// Writes layers: what changed in those of the file, and new ones as new elements.
#pragma once

#include <vector>

#include "SvgArtWriter.h"
#include "SvgLayerForms.h"
#include "SvgTagEdit.h"
#include "SvgWriting.h"

namespace host {

class SvgLayerWriter {
 public:
  SvgLayerWriter(SvgWriting& writing, SvgArtWriter& arts) : writing_(writing), arts_(arts), forms_(writing) {}

  void write();

 private:
  void cutLost();
  void insertRun(const std::vector<LayerId>& run, LayerId below, LayerId above);
  SvgSpot spotBetween(LayerId below, LayerId above) const;

  SvgNewContent newLayer(LayerId id, SvgPlace place);
  SvgNewContent content(LayerId id, const SvgPlace& place);
  SvgNewContent copied(LayerId id, NodeIndex element, const SvgPlace& place);
  SvgNewContent moved(LayerId id, const SvgPlace& place);
  void editKept(LayerId id);
  void editState(LayerId id, SvgTagEdit& tag) const;
  bool losesMark(LayerId id) const;
  void editTitle(LayerId id, SvgTagEdit& tag) const;

  SvgWriting& writing_;
  SvgArtWriter& arts_;
  SvgLayerForms forms_;
};

}  // namespace host

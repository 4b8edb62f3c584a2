// How each layer is going to stand in the file, so that a reader finds the layers there are, in their order.
#pragma once

#include <vector>

#include "SvgWriting.h"

namespace host {

// One layer at most stands for what lies loose in the root element, as planLayers() has it. It goes on doing
// so while that can be told from the file; otherwise it becomes a layer with an element.
class SvgLayerForms {
 public:
  explicit SvgLayerForms(const SvgWriting& writing);

  bool hasElement(LayerId id) const;  // one of the file, which is kept or moved
  bool isLoose(LayerId id) const { return id != 0 && id == loose_; }
  // Does it bear the mark of what this host added? If all did, a reader would take the file for an empty one
  // with a layer of its own.
  bool isMarkedAdded(LayerId id) const;
  // Those that a reader would meet in the file without anything being moved, from the bottom up.
  std::vector<LayerId> keptInFile() const;
  // Where a layer of keptInFile() begins.
  NodeIndex beginOf(LayerId id) const;

 private:
  // What a reader takes a child of the root element for.
  enum class Taken { Art, NamedGroup, Layer };

  bool wasLoose(LayerId id) const;
  bool isOfTheFile(LayerId id) const;
  bool isDeclared(LayerId id) const;
  LayerId oneToDeclare() const;
  bool canStayLoose(LayerId id) const;
  bool isImplied(LayerId id) const;
  Taken takenFor(ArtId child) const;
  // By its element in the file, or by that of what it is a copy of, which copies leave the id to.
  Taken groupTakenFor(ArtId group, NodeIndex element, bool isCopy) const;
  NodeIndex beginOfLoose() const;

  const SvgWriting& writing_;
  LayerId loose_ = 0;
  LayerId declared_ = 0;  // 0: others of the file show that it has layers of its own, or loose art
  NodeIndex looseBegin_ = 0;
};

// Is a layer's name, state or step another one than in the file?
bool hasNewState(const SvgWriting& writing, LayerId id);

}  // namespace host

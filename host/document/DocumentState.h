// The records of a document beside its art.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Art.h"

namespace host {

using SwatchId = ObjectId;
using SwatchGroupId = ObjectId;
using CustomColorId = ObjectId;

struct Layer {
  bool alive = true;
  bool visible = true;
  bool editable = true;  // false: locked
  bool preview = true;
  bool printed = true;
  bool isTemplate = false;
  bool dimsPlacedImages = false;
  ArtId root = 0;  // its group
  SourceId source = 0;
  LayerId copyOf = 0;  // what it was copied from, or that one was; 0: no copy
  std::string title;   // UTF-8; titles need not differ
  // The processing step (ISO 19593-1) that was chosen for it, such as "Structural/Cutting"; empty: none was
  // wanted; nullopt: none was chosen yet.
  std::optional<std::string> step;
};

struct CustomColor {
  bool alive = true;
  std::string name;
  AICustomColor definition{};
};

struct Swatch {
  bool alive = true;
  std::string name;
  AIColor color{};
  SwatchGroupId group = 0;  // 0: in no group
};

struct SwatchGroup {
  bool alive = true;
  std::string name;
  std::int32_t kind = 0;
};

struct Artboard {
  AIRealRect position{};  // document units
  std::string name;
  SourceId source = 0;
};

// A gradient or a pattern: kept as the format wrote it.
struct PaintServer {
  std::string reference;  // in terms of the format, such as "url(#lg1)"
  AIColor fallback{};     // what to show where it can't be drawn
};

// Orders and choices. Undo restores them like any other record.
struct DocumentState {
  bool alive = true;
  std::vector<LayerId> layers;  // from the top down
  LayerId currentLayer = 0;
  std::vector<SwatchId> swatches;  // in list order
  std::vector<SwatchGroupId> swatchGroups;
  std::vector<Artboard> artboards;  // never empty in an open document
  std::size_t activeArtboard = 0;
};

}  // namespace host

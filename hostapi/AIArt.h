// Art objects and their tree.
//
// Art lies in the root group of its layer, in paint order: the first child of a group is its topmost.
#pragma once

#include "AITypes.h"

enum AIArtType : std::int16_t {
  kUnknownArt = 0,
  kGroupArt = 1,
  kPathArt = 2,
  kCompoundPathArt = 3,
  kTextFrameArt = 4,
  kPlacedArt = 5,  // an image that lies in a file of its own
  kRasterArt = 6,  // an image inside the document
  kSymbolArt = 7,  // an instance of art that is defined elsewhere
  kForeignArt = 8  // kept as a whole, not understood
};

enum AIPaintOrder : std::int16_t {
  kPlaceAbove = 1,  // beside the reference, above it
  kPlaceBelow = 2,
  kPlaceInsideOnTop = 3,  // inside the reference, a group or a compound path
  kPlaceInsideOnBottom = 4,
  kPlaceAboveAll = 5,  // of all layers, or of the art of the top layer; takes no reference
  kPlaceBelowAll = 6
};

// Flags of GetArtTransformBounds. Without any: painted bounds, strokes and what they reach included.
enum AIArtBoundsFlags : std::int32_t {
  kNoStrokeBounds = 0x04,                // geometry only
  kExcludeUnpaintedObjectBounds = 0x10,  // paths without fill and stroke count for nothing
  kExcludeGuideBounds = 0x40             // guides count for nothing
};

// Attributes of art, one bit each.
enum AIArtUserAttr : std::int32_t {
  kArtSelected = 0x01,  // a group: anything in it is; a path inside a compound path: the whole is
  kArtLocked = 0x02,    // by itself, whatever its layer or group is
  kArtHidden = 0x04,    // by itself
  kArtIsClipMask = 0x1000
};

constexpr char kAIArtSuite[] = "AI Art Suite";
constexpr std::int32_t kAIArtSuiteVersion = 1021;

struct AIArtSuite {
  // Makes a path, a compound path or a group. `prep` is the reference of `order`; with kPlaceAboveAll it
  // is null. The new art belongs to the document. kLayerLockedErr if the layer it would lie in is locked
  // or hidden, kWrongKindErr if `prep` cannot hold art, kBadParameterErr for another type.
  AIErr (*NewArt)(AIArtType type, AIPaintOrder order, AIArtHandle prep, AIArtHandle* art);
  AIErr (*DisposeArt)(AIArtHandle art);  // with all it holds
  // Moves art. kBadParameterErr if `prep` lies inside `art`.
  AIErr (*ReorderArt)(AIArtHandle art, AIPaintOrder order, AIArtHandle prep);
  // Makes a copy of art with all it holds, paints, names and locks; of selected art the copy is selected too.
  // The root group of a layer beside that of another one copies the whole layer, with title and state, as a
  // layer there; *copy is its root group. Errors as of NewArt and ReorderArt.
  AIErr (*DuplicateArt)(AIArtHandle art, AIPaintOrder order, AIArtHandle prep, AIArtHandle* copy);
  // The root group of a layer; a null layer is the current one. Never null on success.
  AIErr (*GetFirstArtOfLayer)(AILayerHandle layer, AIArtHandle* art);
  // Null at the end of the walk, with success.
  AIErr (*GetArtFirstChild)(AIArtHandle art, AIArtHandle* child);
  AIErr (*GetArtSibling)(AIArtHandle art, AIArtHandle* sibling);  // the next below
  AIErr (*GetArtParent)(AIArtHandle art, AIArtHandle* parent);    // null for a root group
  AIErr (*GetArtType)(AIArtHandle art, std::int16_t* type);
  AIErr (*GetLayerOfArt)(AIArtHandle art, AILayerHandle* layer);
  // Of the attributes in `which`, a sum, those that are set.
  AIErr (*GetArtUserAttr)(AIArtHandle art, std::int32_t which, std::int32_t* attributes);
  // Selects or deselects; selecting a group selects what it holds that is neither locked nor hidden. No step
  // of undo. kLayerLockedErr for art that is to be selected and is locked or hidden, as is its layer or
  // group; kBadParameterErr if `which` is not kArtSelected.
  AIErr (*SetArtUserAttr)(AIArtHandle art, std::int32_t which, std::int32_t attributes);
  AIErr (*GetArtName)(AIArtHandle art, AIUnicodeStringHandle name);  // empty if it has none
  AIErr (*SetArtName)(AIArtHandle art, AIUnicodeStringHandle name);
  // Bounds after `matrix` (null is the identity). Art that holds nothing that counts gives a rectangle
  // with left > right and bottom > top, with success.
  AIErr (*GetArtTransformBounds)(AIArtHandle art, const AIRealMatrix* matrix, std::int32_t flags,
                                 AIRealRect* bounds);
};

extern const AIArtSuite* sAIArt;

// Numbers, points, handles and result codes that all suites share.
//
// Coordinates are document coordinates unless a comment says otherwise: x right, y up, in document
// units (points divided by the document scale), origin at the lower left corner of the first artboard.
// Handles are opaque keys into the host's registry, never addresses to look behind. A handle that is
// null, of a closed document or of deleted art makes a call return kBadParameterErr.
#pragma once

#include <cstdint>

#include "SPTypes.h"

using AIErr = SPErr;
using AIReal = double;
using AIBoolean = std::uint8_t;

constexpr AIErr kNoErr = 0;
constexpr AIErr kBadParameterErr = ErrorCode("PARM");  // null, stale or foreign handle; null out-parameter
constexpr AIErr kOutOfMemoryErr = kSPOutOfMemoryError;
constexpr AIErr kUnhandledMsgErr = ErrorCode("!MSG");
constexpr AIErr kNoDocumentErr = ErrorCode("!DOC");   // the call needs an open document
constexpr AIErr kNoSuchItemErr = ErrorCode("!ITM");   // index or name beyond what there is
constexpr AIErr kLayerLockedErr = ErrorCode("LOCK");  // the layer is locked or hidden
constexpr AIErr kWrongKindErr = ErrorCode("KIND");    // the art is not of the kind the call is for

using AIArtHandle = struct AIArtRecord*;
using AILayerHandle = struct AILayerRecord*;
using AIDocumentHandle = struct AIDocumentRecord*;
using AIDocumentViewHandle = struct AIDocumentViewRecord*;
using AIHitRef = struct AIHitRecord*;
using AISwatchRef = struct AISwatchRecord*;
using AISwatchListRef = struct AISwatchListRecord*;  // null is the current document's list
using AISwatchGroupRef = struct AISwatchGroupRecord*;
using AICustomColorHandle = struct AICustomColorRecord*;
using AIPaintServerHandle = struct AIPaintServerRecord*;  // a gradient or a pattern of the document
using AIMenuItemHandle = struct AIMenuItemRecord*;
using AIMenuGroup = struct AIMenuGroupRecord*;
using AINotifierHandle = struct AINotifierRecord*;
using AITimerHandle = struct AITimerRecord*;
using AIToolHandle = struct AIToolRecord*;
using AIAnnotatorHandle = struct AIAnnotatorRecord*;
using AIAnnotatorDrawer = struct AIAnnotatorDrawerRecord;
using AIResourceManagerHandle = struct AIResourceManagerRecord*;
using AIUnicodeStringHandle = struct AIUnicodeStringRecord*;
using AIFilePathHandle = struct AIFilePathRecord*;
using AIArtboardListHandle = struct AIArtboardListRecord*;
using AIArtboardPropertiesHandle = struct AIArtboardPropertiesRecord*;
using SPFileRef = struct SPFileRecord*;
using AIAppContextHandle = struct AIAppContextRecord*;
using AIPanelRef = struct AIPanelRecord*;
using AIPanelFlyoutMenuRef = struct AIPanelFlyoutMenuRecord*;

// Of a panel, in units of the host's interface.
struct AISize {
  AIReal width, height;
};

struct AIRealPoint {
  AIReal x, y;
};

// In document coordinates top is greater than bottom.
struct AIRealRect {
  AIReal left, top, right, bottom;
};

// x' = a*x + c*y + tx, y' = b*x + d*y + ty
struct AIRealMatrix {
  AIReal a, b, c, d, tx, ty;
};

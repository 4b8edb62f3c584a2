#include "CutTool.h"

#include "AIDocumentView.h"
#include "AIPreference.h"
#include "AddRegmark.h"
#include "CurrentDocument.h"
#include "CutOption.h"
#include "CutPlugin.h"
#include "PlaceChosenMarks.h"
#include "RegmarkColors.h"
#include "RegmarkStyle.h"
#include "ShowCriticalMessage.h"
#include "TableHeadAnnotator.h"

namespace Vandrell::Corvane {
namespace {

constexpr std::int32_t kRoundCursor = 16221;
constexpr std::int32_t kCrossCursor = 16223;
constexpr std::int32_t kPreciseCursor = 16224;

// From the hot spot of the precise cursor to where its lines meet.
constexpr AIRealPoint kPreciseCursorOffset{-0.25, 0.5};

constexpr AIToolInfoVariable kCursorVariables[] = {kInfoDocX, kInfoDocY, kInfoEnd};

bool WantsPreciseCursors() {
  std::int32_t precise = 0;
  sAIPreference->GetIntegerPreference(nullptr, "usePreciseCursors", &precise);
  return precise != 0;
}

double CurrentZoom() {
  AIDocumentViewHandle view = nullptr;
  AIReal zoom = 1.0;
  sAIDocumentView->GetNthDocumentView(0, &view);
  return sAIDocumentView->GetDocumentViewZoom(view, &zoom) == kNoErr ? zoom : 1.0;
}

}  // namespace

CutTool::CutTool(CutPlugin* owner, const char* name, int iconID, std::uint32_t markShape, AIAddToolData* data)
    : HMX_AITool(owner, name, name, kToolWantsToTrackCursorOption, iconID, data), shape(markShape) {
  ResetColors();
  sAITool->SetToolInfoVars(tool, kCursorVariables);
}

CutTool::~CutTool() = default;

AIErr CutTool::EditOptions(const AIToolMessage& /*message*/) {
  if (!HasDocument()) return kNoErr;
  return PlaceChosenMarks(*CutPlugin::GetInstance(), TableHead::kStays);
}

AIErr CutTool::TrackCursor(const AIToolMessage& message) {
  const bool precise = WantsPreciseCursors();
  const std::int32_t ownCursor = shape == kRoundRegmark ? kRoundCursor : kCrossCursor;
  plugin->SetCursor(precise ? kPreciseCursor : ownCursor);
  cursorOffset = precise ? kPreciseCursorOffset : AIRealPoint{0, 0};
  const AIReal* const position[] = {&message.cursor.x, &message.cursor.y};
  sAITool->SetToolInfoVarValues(kCursorVariables, position);
  return kNoErr;
}

AIErr CutTool::MouseDown(const AIToolMessage& message) {
  const AIRealPoint point = MarkPoint(message.cursor);
  ResetOtherTools();
  sAIPreference->PutIntegerPreference(kRegmarkPreferencePrefix, kSelectedToolPreference,
                                      static_cast<std::int32_t>(shape));
  const AIErr error = AddRegmark(MakeRegmarkStyle(MarkOption()), point);
  if (error != kNoErr) {
    qRVADM::ShowCriticalMessage("Could not add regmarks because the regmark layer is locked or hidden.");
  }
  return error;
}

AIErr CutTool::MouseDrag(const AIToolMessage& /*message*/) {
  return kNoErr;
}

AIErr CutTool::MouseUp(const AIToolMessage& /*message*/) {
  return kNoErr;
}

AIErr CutTool::Select(const AIToolMessage& /*message*/) {
  CutOption option;
  option.LoadPreferences();
  option.shape = shape;
  option.SavePreferences();
  if (annotator == nullptr) annotator = std::make_shared<TableHeadAnnotator>(CutPlugin::GetInstance());
  RefreshAnnotator();
  return kNoErr;
}

AIErr CutTool::Deselect(const AIToolMessage& /*message*/) {
  if (annotator != nullptr) annotator->Update(nullptr);
  return kNoErr;
}

void CutTool::SetColors(const AIColor& fill, const AIColor& stroke) {
  fillColor = fill;
  strokeColor = stroke;
}

void CutTool::ResetColors() {
  SetColors(BlackRegmarkColor(), NoRegmarkColor());
}

void CutTool::RefreshAnnotator() {
  if (annotator == nullptr) return;
  if (const AIDocumentHandle document = GetCurrentDocument()) annotator->Update(document);
}

void CutTool::ResetOtherTools() const {
  for (const RegmarkShape other : {kRoundRegmark, kCrossRegmark}) {
    CutTool* const otherTool = CutPlugin::GetInstance()->GetTool(other);
    if (other != shape && otherTool != nullptr) otherTool->ResetColors();
  }
}

// What was stored, in this tool's colours. Selecting the tool has stored its shape.
CutOption CutTool::MarkOption() const {
  CutOption option;
  option.LoadPreferences();
  option.fillColor = fillColor;
  option.strokeColor = strokeColor;
  // A cross has no bars without a weight.
  if (option.strokeWeight == 0.0 && option.shape == kCrossRegmark) {
    option.strokeWeight = kDefaultRegmarkStrokeWeight;
  }
  return option;
}

AIRealPoint CutTool::MarkPoint(const AIRealPoint& cursor) const {
  const double zoom = CurrentZoom();
  return {cursor.x + cursorOffset.x / zoom, cursor.y + cursorOffset.y / zoom};
}

}  // namespace Vandrell::Corvane

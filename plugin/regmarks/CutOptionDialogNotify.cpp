// What the user does in the dialog, and what comes of it.
#include "CutOption.h"
#include "CutOptionDialog.h"
#include "RVADM_DropDownList.h"
#include "RVADM_FillStrokeItem.h"
#include "RVADM_Label.h"
#include "RVADM_NumericEdit.h"
#include "RVADM_PictureLabel.h"
#include "RVADM_PicturePushButton.h"
#include "RVADM_Radio.h"
#include "RVADM_Slider.h"
#include "RVADM_TextPushButton.h"
#include "RegmarkColors.h"
#include "Truncation.h"

namespace Vandrell::Corvane {

using namespace qRVADM;

namespace {

AIColor FillOf(const RVADM_FillStrokeItem& item) {
  AIColor color;
  item.GetFill(&color);
  return color;
}

AIColor StrokeOf(const RVADM_FillStrokeItem& item) {
  AIColor color;
  item.GetStroke(&color);
  return color;
}

}  // namespace

void CutOptionDialog::OnItemNotify(RVADM_Item* item) {
  if (item == okButton) {
    EndDialog(kAccepted, false);
  } else if (item == cancelButton) {
    EndDialog(kCancelled, true);
  } else if (item == shapeList) {
    ShowShape(ChosenShape());
    OnShapeChanged();
  } else if (item == colorItem) {
    OnStrokeChanged();
  } else if (item == strokeEdit) {
    OnWeightChanged();
  } else if (item == noneButton) {
    TakeActivePaintAway();
  } else if (item == manualRadio || item == cornerRadio || item == autoRadio) {
    EnableCount();
  }
}

void CutOptionDialog::OnCommit(int /*result*/) {
  option->shape = ChosenShape();
  option->size = sizeEdit->GetValue(kPointUnits);
  option->strokeWeight = strokeEdit->GetValue(kPointUnits);
  option->fillColor = FillOf(*colorItem);
  option->strokeColor = StrokeOf(*colorItem);
  if (manualRadio->IsChecked()) option->action = kMarksManually;
  if (cornerRadio->IsChecked()) option->action = kCornerMarks;
  if (autoRadio->IsChecked()) option->action = kAutoMarks;
  option->count = TruncToInt64(countSlider->GetValue());
}

std::uint32_t CutOptionDialog::ChosenShape() {
  const RVADM_ComboEntry* const entry = shapeList->GetActiveEntry();
  return entry == nullptr ? lastShape : static_cast<std::uint32_t>(entry->data);
}

bool CutOptionDialog::HasStroke() const {
  return IsPainted(StrokeOf(*colorItem));
}

bool CutOptionDialog::HasWeight() const {
  return strokeEdit->GetValue(kPointUnits) != 0.0;
}

void CutOptionDialog::ShowShape(std::uint32_t shape) {
  if (shape == kRoundRegmark) preview->SetPicture(kRoundPicture);
  if (shape == kCrossRegmark) preview->SetPicture(kCrossPicture);
}

void CutOptionDialog::EnableCount() {
  const bool isAuto = autoRadio->IsChecked();
  countSlider->SetEnabled(isAuto);
  fewLabel->SetEnabled(isAuto);
  manyLabel->SetEnabled(isAuto);
}

// What a disc is filled with becomes the paint of the bars, and the other way round.
void CutOptionDialog::OnShapeChanged() {
  const std::uint32_t oldShape = lastShape;
  lastShape = ChosenShape();
  if (lastShape == oldShape) return;
  if (lastShape == kCrossRegmark) {
    SwapPaints();
    colorItem->SetFillActive(false);
  } else if (oldShape == kCrossRegmark) {
    SwapPaints();
    colorItem->SetFillActive(true);
  }
}

void CutOptionDialog::SwapPaints() {
  const AIColor fill = FillOf(*colorItem);
  colorItem->SetFill(StrokeOf(*colorItem));
  colorItem->SetStroke(fill);
}

// This and OnWeightChanged bring one another about once: then paint and weight agree.
void CutOptionDialog::OnStrokeChanged() {
  if (!HasStroke()) {
    strokeEdit->SetValue(kPointUnits, 0.0);
    return;
  }
  lastStrokeColor = StrokeOf(*colorItem);
  if (!HasWeight()) strokeEdit->SetValue(kPointUnits, kDefaultRegmarkStrokeWeight);
}

void CutOptionDialog::OnWeightChanged() {
  if (!HasWeight()) {
    colorItem->SetStroke(NoRegmarkColor());
  } else if (!HasStroke()) {
    colorItem->SetStroke(lastStrokeColor);
  }
}

void CutOptionDialog::TakeActivePaintAway() {
  if (colorItem->IsFillActive()) {
    colorItem->SetFill(NoRegmarkColor());
  } else {
    colorItem->SetStroke(NoRegmarkColor());
  }
}

}  // namespace Vandrell::Corvane

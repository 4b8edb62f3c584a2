// Where the items of the dialog stand.
#include <QSize>

#include "CutOptionDialog.h"
#include "RVADM_DropDownList.h"
#include "RVADM_FillStrokeItem.h"
#include "RVADM_Group.h"
#include "RVADM_Label.h"
#include "RVADM_ModalDialogButtons.h"
#include "RVADM_NumericEdit.h"
#include "RVADM_PictureLabel.h"
#include "RVADM_PicturePushButton.h"
#include "RVADM_Radio.h"
#include "RVADM_Slider.h"

namespace Vandrell::Corvane {

using namespace qRVADM;

namespace {

// Pixels.
constexpr int kFieldWidth = 125;
constexpr int kSliderOverhang = 3;  // its groove begins that far inside of it
constexpr int kButtonDrop = 7;      // to where the group's line is

}  // namespace

void CutOptionDialog::LayoutItems() {
  LayoutAppearance();
  LayoutAction();
  actionGroup->FitDialogToItem(kAlignBase | kStretchBottom);
  appearanceGroup->PlaceRightOf(buttonRow, kAlignBase | kAlignTop, kDefaultGap);
  buttonRow->MoveTo(0, kButtonDrop, true);
  buttonRow->FitDialogToItem(kAlignBase | kStretchRight);
}

void CutOptionDialog::LayoutAppearance() {
  AlignItem(appearanceGroup, kAlignBase | kAlignTop | kAlignLeft);
  appearanceGroup->AlignItemInside(shapeList, kAlignBase | kAlignTop);
  shapeList->PlaceBelow(sizeEdit, kAlignBase, kDefaultGap);
  sizeEdit->PlaceBelow(strokeEdit, kAlignBase, kDefaultGap);
  strokeEdit->PlaceBelow(colorItem, kAlignBase, kDefaultGap);
  AlignLabels();
  shapeList->SetWidth(kFieldWidth);
  shapeList->PlaceRightOf(preview, kAlignBase | kCenterV, kDefaultGap);
  sizeEdit->SetWidth(kFieldWidth);
  strokeEdit->SetWidth(kFieldWidth);
  const QSize icon = noneButton->iconSize();
  noneButton->SetSize(icon.width(), icon.height());
  colorItem->PlaceRightOf(noneButton, kAlignBase | kAlignBottom, kDefaultGap);
  appearanceGroup->FitToItem(colorItem, kAlignBase | kStretchBottom);
  appearanceGroup->FitToItem(preview, kAlignBase | kStretchRight);
}

// The labels end at one line, each beside the middle of its field.
void CutOptionDialog::AlignLabels() {
  const struct {
    RVADM_Label* label;
    RVADM_Item* field;
  } rows[] = {
      {shapeLabel, shapeList}, {sizeLabel, sizeEdit}, {strokeLabel, strokeEdit}, {colorLabel, colorItem}};
  RVADM_Label* widest = shapeLabel;
  for (const auto& row : rows) {
    if (row.label->GetWidth() > widest->GetWidth()) widest = row.label;
  }
  appearanceGroup->AlignItemInside(widest, kAlignBase | kAlignLeft);
  for (const auto& row : rows) {
    if (row.label != widest) row.label->AlignWith(widest, kAlignBase | kAlignRight);
  }
  for (const auto& row : rows) {
    row.label->PlaceRightOf(row.field, kAlignBase, kDefaultGap);
    row.label->AlignWith(row.field, kAlignBase | kCenterV);
  }
}

void CutOptionDialog::LayoutAction() {
  appearanceGroup->PlaceBelow(actionGroup, kAlignBase | kAlignLeft, kDefaultGap);
  actionGroup->SetWidth(appearanceGroup->GetWidth());
  actionGroup->AlignItemInside(manualRadio, kAlignBase | kAlignTop);
  manualRadio->AlignWith(shapeList, kAlignBase | kAlignLeft);
  manualRadio->PlaceLeftOf(addLabel, kAlignBase | kCenterV, kDefaultGap);
  manualRadio->PlaceBelow(cornerRadio, kAlignBase | kAlignLeft, kDefaultGap);
  cornerRadio->PlaceBelow(autoRadio, kAlignBase | kAlignLeft, kDefaultGap);
  autoRadio->PlaceBelow(countSlider, kAlignBase, kDefaultGap);
  countSlider->AlignWith(autoRadio, kAlignBase | kAlignLeft);
  countSlider->MoveTo(-kSliderOverhang, 0, true);
  countSlider->SetRight((preview->GetLeft() + preview->GetRight()) / 2);
  countSlider->PlaceBelow(fewLabel, kAlignBase | kAlignLeft, kDefaultGap);
  fewLabel->MoveTo(-kSliderOverhang, -kSliderOverhang, true);
  countSlider->PlaceBelow(manyLabel, kAlignBase | kAlignRight, kDefaultGap);
  manyLabel->MoveTo(kSliderOverhang, -kSliderOverhang, true);
  actionGroup->FitToItem(manyLabel, kAlignBase | kStretchBottom);
}

}  // namespace Vandrell::Corvane

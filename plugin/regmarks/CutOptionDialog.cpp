#include "CutOptionDialog.h"

#include "AutoMarkCount.h"
#include "CutOption.h"
#include "Localize.h"
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
#include "RVADM_TextPushButton.h"
#include "RegmarkColors.h"
#include "RulerUnits.h"
#include "TextKey.h"

namespace Vandrell::Corvane {

using namespace qRVADM;

namespace {

constexpr int kNonePicture = 16225;
constexpr bool kResizable = true;

// Lengths in points.
constexpr double kLeastSize = 0.01;
constexpr double kLeastWeight = 0.0;
constexpr double kGreatestLength = 10000.0;

void AddShape(RVADM_DropDownList* list, const char* text, RegmarkShape shape, std::uint32_t chosen) {
  auto* const entry = new RVADM_ComboEntry(list, text, true);
  entry->data = shape;
  if (shape == chosen) entry->Select(true);
}

// Among radios that exclude one another Qt takes no mark away without setting another one.
void TakeMarkAway(RVADM_Radio* radio) {
  radio->setAutoExclusive(false);
  radio->SetChecked(false);
  radio->setAutoExclusive(true);
}

}  // namespace

CutOptionDialog::CutOptionDialog(CutOption* edited)
    : RVADM_ModalDialog(!kResizable),
      option(edited),
      lastShape(edited->shape),
      lastStrokeColor(BlackRegmarkColor()) {}

CutOptionDialog::~CutOptionDialog() = default;

void CutOptionDialog::CreateItems() {
  CreateAppearance();
  CreateAction();
  CreateButtons();
  NameItems();
}

void CutOptionDialog::CreateAppearance() {
  appearanceGroup = new RVADM_Group(this, TextKey("Appearance:"), true);
  shapeLabel = new RVADM_Label(this, TextKey("Shape:"), true);
  shapeList = new RVADM_DropDownList(this);
  preview = new RVADM_PictureLabel(this, kRoundPicture);
  sizeLabel = new RVADM_Label(this, TextKey("Size:"), true);
  sizeEdit = MakeLengthEdit(kLeastSize);
  strokeLabel = new RVADM_Label(this, TextKey("Stroke Weight:"), true);
  strokeEdit = MakeLengthEdit(kLeastWeight);
  strokeEdit->SetKeepEmpty(true);
  colorLabel = new RVADM_Label(this, TextKey("Color:"), true);
  colorItem = new RVADM_FillStrokeItem(this);
  colorItem->setFocusPolicy(Qt::NoFocus);
  noneButton = new RVADM_PicturePushButton(this, kNonePicture, 0);
  noneButton->SetFlat(false);
  noneButton->setFocusPolicy(Qt::NoFocus);
}

RVADM_NumericEdit* CutOptionDialog::MakeLengthEdit(double minimum) {
  auto* const edit = new RVADM_NumericEdit(this, false, -1, minimum, kGreatestLength, 1.0);
  const std::int16_t ruler = GetRulerUnits();
  ADMUnits unit = kPointUnits;
  RulerToADMUnits(ruler, &unit);
  edit->SetShowArrows(true);
  edit->SetUnits(unit);
  edit->SetPrecision(RulerDecimals(ruler));
  return edit;
}

void CutOptionDialog::CreateAction() {
  actionGroup = new RVADM_Group(this, TextKey("Action:"), true);
  addLabel = new RVADM_Label(this, TextKey("Add:"), true);
  manualRadio = new RVADM_Radio(this, TextKey("Marks Manually"));
  manualRadio->SetChecked(true);
  cornerRadio = new RVADM_Radio(this, TextKey("Corner Marks"));
  autoRadio = new RVADM_Radio(this, TextKey("Auto Marks"));
  countSlider = new RVADM_Slider(this, true, kFewestAutoMarks, static_cast<double>(MaxAutoMarkCount()), 1.0);
  fewLabel = new RVADM_Label(this, TextKey("Few"), true);
  manyLabel = new RVADM_Label(this, TextKey("Many"), true);
  EnableCount();
}

void CutOptionDialog::CreateButtons() {
  okButton = new RVADM_TextPushButton(this, TextKey("OK"));
  SetDefaultButton(okButton);
  cancelButton = new RVADM_TextPushButton(this, TextKey("Cancel"));
  SetCancelButton(cancelButton);
  buttonRow = new RVADM_ModalDialogButtons(this, true);
  buttonRow->AddButton(kAcceptButton, okButton, false);
  buttonRow->AddButton(kRejectButton, cancelButton, false);
}

// For those who do not see which text stands beside an item.
void CutOptionDialog::NameItems() {
  shapeLabel->setBuddy(shapeList);
  sizeLabel->setBuddy(sizeEdit);
  strokeLabel->setBuddy(strokeEdit);
  colorLabel->setBuddy(colorItem);
  noneButton->setAccessibleName(QString::fromUtf8(Localize("None")));
  countSlider->setAccessibleName(fewLabel->GetTextInt() + QStringLiteral(" - ") + manyLabel->GetTextInt());
}

// The paints come behind the weight, which follows them.
void CutOptionDialog::InitItems() {
  shapeList->Clear();
  AddShape(shapeList, TextKey("Round"), kRoundRegmark, option->shape);
  AddShape(shapeList, TextKey("Cross"), kCrossRegmark, option->shape);
  sizeEdit->SetValue(kPointUnits, option->size);
  strokeEdit->SetValue(kPointUnits, option->strokeWeight);
  InitColors();
  ShowShape(option->shape);
  InitAction();
}

void CutOptionDialog::InitColors() {
  const bool isCross = option->shape == kCrossRegmark;
  colorItem->SetFill(isCross ? NoRegmarkColor() : BlackRegmarkColor());
  colorItem->SetStroke(isCross ? BlackRegmarkColor() : NoRegmarkColor());
  colorItem->SetFillActive(!isCross);
}

// An action that has no radio stands for itself: it is kept unless the user takes another one.
void CutOptionDialog::InitAction() {
  RVADM_Radio* const radios[] = {manualRadio, cornerRadio, autoRadio};
  if (option->action < std::size(radios)) {
    radios[option->action]->SetChecked(true);
  } else {
    TakeMarkAway(manualRadio);
  }
  EnableCount();
  countSlider->SetValue(static_cast<double>(option->count));
}

}  // namespace Vandrell::Corvane
